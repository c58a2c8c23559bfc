#pragma once

#include "foundation/CPoint.h"
#include "foundation/TCountedPointerArray.h"

#include <memory>

namespace Tessitor::MathTools {

/// A list of points; the polygon owns them. [one thread at a time]
class CPolygon : public Basics::CCountedObject {
public:
    explicit CPolygon(int numberOfPoints);  ///< all at 0, 0; no points if the number is below 1
    CPolygon(const CPolygon &other);        ///< copies the points
    ~CPolygon() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    /// Copies the positions of the other's points. Pointers to points of this polygon stay valid if
    /// the number of points does not change.
    virtual CPolygon &operator=(const CPolygon &other);
    virtual bool operator==(const CPolygon &other) const;  ///< same number, same positions

    CPoint *getPoint(int index) const;  ///< null outside 0 to getNumberOfPoints() - 1
    int getNumberOfPoints() const { return m_points->getInsertIndex(); }
    void addPoint(const CPoint &point);  ///< appends a copy
    void offset(const CPoint &by);       ///< moves every point

private:
    void makePoints(int number);

    static Basics::TClassRecord<CPolygon> s_class;

    std::unique_ptr<Collections::TCountedPointerArray<CPoint>> m_points;
};

}  // namespace Tessitor::MathTools
