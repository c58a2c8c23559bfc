#include "foundation/CPolygon.h"

namespace Tessitor::MathTools {

Basics::TClassRecord<CPolygon> CPolygon::s_class("CPolygon", "CCountedObject");

CPolygon::CPolygon(int numberOfPoints)
    : m_points(std::make_unique<Collections::TCountedPointerArray<CPoint>>()) {
    makePoints(numberOfPoints);
    s_class.incrementInstanceCount();
}

CPolygon::CPolygon(const CPolygon &other) : CPolygon(0) {
    CPolygon::operator=(other);
}

CPolygon &CPolygon::operator=(const CPolygon &other) {
    const int number = other.getNumberOfPoints();
    if (number != getNumberOfPoints())
        makePoints(number);
    for (int i = 0; i < number; ++i)
        *getPoint(i) = *other.getPoint(i);
    return *this;
}

bool CPolygon::operator==(const CPolygon &other) const {
    if (getNumberOfPoints() != other.getNumberOfPoints())
        return false;
    for (int i = 0; i < getNumberOfPoints(); ++i)
        if (*getPoint(i) != *other.getPoint(i))
            return false;
    return true;
}

CPoint *CPolygon::getPoint(int index) const {
    return m_points->elementAtIndex(index);
}

void CPolygon::addPoint(const CPoint &point) {
    m_points->addElement(new CPoint(point));
}

void CPolygon::offset(const CPoint &by) {
    // Copied first: the argument may be a point of this polygon.
    const std::int32_t x = by.getXPosition(), y = by.getYPosition();
    for (int i = 0; i < getNumberOfPoints(); ++i)
        getPoint(i)->offset(x, y);
}

void CPolygon::makePoints(int number) {
    m_points->clearArray();
    for (int i = 0; i < number; ++i)
        addPoint(CPoint());
}

}  // namespace Tessitor::MathTools
