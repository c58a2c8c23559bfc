#include "foundation/CPoint.h"

#include "foundation/CopyText.h"
#include "foundation/WrappingArithmetic.h"

#include <cstdio>

namespace Tessitor::MathTools {

Basics::TClassRecord<CPoint> CPoint::s_class("CPoint", "CCountedObject");

CPoint::CPoint(std::int32_t x, std::int32_t y) : m_x(x), m_y(y) {
    s_class.incrementInstanceCount();
}

void CPoint::getObjectDescription(char *array, long size) const {
    char text[64];
    std::snprintf(text, sizeof text, "[%li,%li]", static_cast<long>(m_x), static_cast<long>(m_y));
    Basics::copyText(array, size, text);
}

void CPoint::setPoint(std::int32_t x, std::int32_t y) {
    m_x = x;
    m_y = y;
}

void CPoint::offset(std::int32_t x, std::int32_t y) {
    m_x = wrappedSum(m_x, x);
    m_y = wrappedSum(m_y, y);
}

CPoint &CPoint::operator+=(const CPoint &other) {
    offset(other);
    return *this;
}

CPoint &CPoint::operator-=(const CPoint &other) {
    setPoint(wrappedDifference(m_x, other.m_x), wrappedDifference(m_y, other.m_y));
    return *this;
}

bool CPoint::hasCommonCoordinate(const CPoint &point) const {
    return m_x == point.m_x || m_y == point.m_y;
}

}  // namespace Tessitor::MathTools
