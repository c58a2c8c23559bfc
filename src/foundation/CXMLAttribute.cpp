#include "foundation/CXMLAttribute.h"

#include "foundation/CBool.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
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

/// Of what no double holds: the place of its first digit and its exponent tell too much from too
/// little.
double atTheEndOfTheRange(const char *begin, const char *end) {
    const bool isNegative = *begin == '-';
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isExponent = [](char c) { return c == 'e' || c == 'E'; };
    const auto isZero = [](char c) { return c == '0'; };

    const char *const first = std::find_if_not(begin + (isNegative ? 1 : 0), end, isZero);
    const char *const point = std::find_if_not(first, end, isDigit);
    const auto whole = point - first;
    const char *const fraction = std::min(point + 1, end);
    const auto zerosBehindThePoint = std::find_if_not(fraction, end, isZero) - fraction;
    const auto place = whole > 0 ? whole : -zerosBehindThePoint;

    const char *exponentText = std::min(std::find_if(point, end, isExponent) + 1, end);
    if (exponentText != end && *exponentText == '+')
        ++exponentText;
    std::int64_t exponent = 0;
    if (std::from_chars(exponentText, end, exponent).ec == std::errc::result_out_of_range)
        exponent = *exponentText == '-' ? std::numeric_limits<std::int32_t>::min()
                                        : std::numeric_limits<std::int32_t>::max();
    const double size = place + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    return isNegative ? -size : size;
}

double numberIn(const CString &text) {
    const char *begin = text.getString();
    while (CString::isWhiteSpace(*begin))
        ++begin;
    if (begin[0] == '+' && begin[1] != '-')
        ++begin;
    const char *const end = begin + std::strlen(begin);
    double value = 0;
    const auto result = std::from_chars(begin, end, value);
    return result.ec == std::errc::result_out_of_range ? atTheEndOfTheRange(begin, end) : value;
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
