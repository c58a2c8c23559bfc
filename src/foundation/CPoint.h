#pragma once

#include "foundation/CCountedObject.h"

namespace Tessitor::MathTools {

/// A position in pixels; y grows downwards. [one thread at a time]
class CPoint : public Basics::CCountedObject {
public:
    CPoint() : CPoint(0, 0) {}
    CPoint(std::int32_t x, std::int32_t y);
    CPoint(const CPoint &other) : CPoint(other.m_x, other.m_y) {}
    ~CPoint() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }
    void getObjectDescription(char *array, long size) const override;  ///< "[x,y]"

    CPoint &operator=(const CPoint &other) = default;
    void setPoint(std::int32_t x, std::int32_t y);
    void setXPosition(std::int32_t x) { m_x = x; }
    void setYPosition(std::int32_t y) { m_y = y; }
    std::int32_t getXPosition() const { return m_x; }
    std::int32_t getYPosition() const { return m_y; }

    void offset(const CPoint &by) { offset(by.m_x, by.m_y); }
    void offset(std::int32_t x, std::int32_t y);
    CPoint &operator+=(const CPoint &other);
    CPoint &operator-=(const CPoint &other);

    bool operator==(const CPoint &other) const { return m_x == other.m_x && m_y == other.m_y; }
    bool hasCommonCoordinate(const CPoint &point) const;  ///< x or y is equal

private:
    static Basics::TClassRecord<CPoint> s_class;

    std::int32_t m_x, m_y;
};

}  // namespace Tessitor::MathTools
