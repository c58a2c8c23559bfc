#include "foundation/CXMLAttribute.h"

#include "foundation/CBool.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace Tessitor::IO {

using Basics::CString;

namespace {

// "%f" and atof would use the locale of the host, which may have a decimal comma.
CString textOf(double value) {
    char text[std::numeric_limits<double>::max_exponent10 + 16];
    const auto [end, failed] =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6);
    *end = '\0';
    return text;
}

double numberIn(std::string_view text);

/// @param number  a number outside the range of double, with no text before or after it.
/// @return infinity if the number is too large, 0 if it is too small, with the sign of the number.
double beyondTheRange(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), mark);
    const std::size_t first = number.find_first_of("123456789");
    const double place = static_cast<double>(point) - static_cast<double>(first);
    // A double, since the exponent may have any number of digits.
    const double exponent = mark < number.size() ? numberIn(number.substr(mark + 1)) : 0;
    const double size = place + exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
    return number.front() == '-' ? -size : size;
}

double numberIn(std::string_view text) {
    while (!text.empty() && CString::isWhiteSpace(text.front()))
        text.remove_prefix(1);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure == std::errc::result_out_of_range)
        return beyondTheRange({text.data(), end});
    return value;
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
    return numberIn(m_value.getString());
}

float CXMLAttribute::getValueAsFloat() const {
    return static_cast<float>(numberIn(m_value.getString()));
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
