#include "foundation/CXMLAttribute.h"

#include "foundation/CBool.h"

#include <charconv>
#include <cstring>
#include <limits>
#include <string>

namespace Tessitor::IO {

using Basics::CString;

namespace {

// As "%f" and atof, but for the locale: a host may have set one that writes a comma.
CString textOf(double value) {
    char text[std::numeric_limits<double>::max_exponent10 + 16];
    const auto [end, failed] =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6);
    return std::string(text, end).c_str();
}

double numberIn(const CString &text) {
    const char *begin = text.getString();
    while (CString::isWhiteSpace(*begin))
        ++begin;
    if (begin[0] == '+' && begin[1] != '-')
        ++begin;
    double value = 0;
    const auto [end, failed] = std::from_chars(begin, begin + std::strlen(begin), value);
    return failed == std::errc::result_out_of_range ? CString::toDouble(text) : value;
}

}  // namespace

Basics::TClassRecord<CXMLAttribute> CXMLAttribute::s_class("CXMLAttribute", "CCountedObject");

CXMLAttribute::CXMLAttribute(const CString &name) : m_name(name) {
    m_name.removeTrailingAndLeadingWhiteSpace();
    m_name.replaceCharWithChar(' ', '_');
    s_class.incrementInstanceCount();
}

void CXMLAttribute::setValue(const CString &value) {
    m_value = value;
}

void CXMLAttribute::setValue(const char *value) {
    m_value.setString(value);
}

void CXMLAttribute::setValue(bool value) {
    m_value = value;
}

void CXMLAttribute::setValue(double value) {
    m_value = textOf(value);
}

void CXMLAttribute::setValue(float value) {
    setValue(static_cast<double>(value));
}

void CXMLAttribute::setValue(long value) {
    m_value.setStringWithFormat("%li", value);
}

void CXMLAttribute::setValue(int value) {
    m_value.setStringWithFormat("%d", value);
}

double CXMLAttribute::getValueAsDouble() const {
    return numberIn(m_value);
}

float CXMLAttribute::getValueAsFloat() const {
    return static_cast<float>(numberIn(m_value));
}

long CXMLAttribute::getValueAsLong() const {
    return CString::toLong(m_value);
}

int CXMLAttribute::getValueAsInt() const {
    return CString::toInt(m_value);
}

bool CXMLAttribute::getValueAsBool() const {
    return Basics::CBool(m_value).getValue();
}

}  // namespace Tessitor::IO
