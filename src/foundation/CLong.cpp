#include "foundation/CLong.h"

#include "foundation/CopyText.h"

#include <cstdio>

namespace Tessitor::Basics {

namespace {

unsigned long bits(long value) {
    return static_cast<unsigned long>(value);
}

long fromBits(unsigned long value) {
    return static_cast<long>(value);
}

}  // namespace

TClassRecord<CLong> CLong::s_class("CLong", "CCountedObject");

CLong::CLong(long value) : m_value(value) {
    s_class.incrementInstanceCount();
}

CLong::CLong(const CLong &other) : CLong(other.m_value) {}

void CLong::getObjectDescription(char *array, long size) const {
    char text[32];
    std::snprintf(text, sizeof text, "%li", m_value);
    copyText(array, size, text);
}

CLong &CLong::operator=(const CLong &other) = default;

CLong &CLong::operator+=(const CLong &other) {
    m_value = fromBits(bits(m_value) + bits(other.m_value));
    return *this;
}

CLong &CLong::operator-=(const CLong &other) {
    m_value = fromBits(bits(m_value) - bits(other.m_value));
    return *this;
}

CLong &CLong::operator*=(const CLong &other) {
    m_value = fromBits(bits(m_value) * bits(other.m_value));
    return *this;
}

CLong &CLong::operator/=(const CLong &other) {
    if (other.m_value == 0)
        m_value = 0;
    else if (other.m_value == -1)
        m_value = fromBits(0 - bits(m_value));  // the smallest number has no positive counterpart
    else
        m_value /= other.m_value;
    return *this;
}

CString CLong::toString(long value, int width) {
    CString text;
    text.setStringWithFormat("%0*li", width, value);
    return text;
}

}  // namespace Tessitor::Basics
