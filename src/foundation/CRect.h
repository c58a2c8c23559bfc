#pragma once

#include "foundation/CDimension.h"
#include "foundation/CPoint.h"
#include "foundation/CString.h"
#include "platform/SNativeRect.h"

#include <memory>

namespace Tessitor::MathTools {

/// A rectangle in pixels; y grows downwards. Size and edges always agree: right = left + width,
/// bottom = top + height. [one thread at a time]
class CRect : public Basics::CCountedObject {
public:
    CRect() : CRect(0, 0, 0, 0) {}
    CRect(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);
    CRect(const CPoint &origin, const CDimension &dimension);
    /// Parses the result of toString(). All zero unless the text has four tokens.
    explicit CRect(const Basics::CString &text);
    CRect(const CRect &other);
    ~CRect() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }
    /// "[left,top,width,height]"
    void getObjectDescription(char *array, long size) const override;

    CRect &operator=(const CRect &other) = default;
    void setRect(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);
    void setLeft(std::int32_t left);  ///< moves the rectangle; the width stays
    void setTop(std::int32_t top);    ///< moves the rectangle; the height stays
    void setWidth(std::int32_t width);
    void setHeight(std::int32_t height);
    void setOrigin(const CPoint &origin);
    void setDimension(const CDimension &dimension);

    std::int32_t getLeft() const { return m_left; }
    std::int32_t getTop() const { return m_top; }
    std::int32_t getRight() const { return m_right; }
    std::int32_t getBottom() const { return m_bottom; }
    std::int32_t getWidth() const { return m_width; }
    std::int32_t getHeight() const { return m_height; }
    std::int32_t getCentreX() const;  ///< left + width / 2, an integer division
    std::int32_t getCentreY() const;

    void offset(const CPoint &by);
    void inset(std::int32_t by);  ///< moves each edge inwards, or outwards if negative
    /// Multiplies left, top, width and height, and truncates each.
    void scale(double factor);
    /// The new left is the smaller of the two. Kept: the new width is the larger of this right edge
    /// and the distance from the new left to the other right edge. That is too large if the
    /// rectangle is not at the origin. Top and height likewise.
    void unionWith(const CRect &rect);
    bool pointIsInside(const CPoint &point) const;  ///< the edges count as inside

    /// @return true if the rectangles overlap or share an edge.
    static bool intersects(const CRect &a, const CRect &b);
    /// The area that both cover. If they do not touch, its width or height is negative.
    static void getIntersection(const CRect &a, const CRect &b, CRect &out);
    /// The same on the heap, but all zero if they do not touch.
    static std::unique_ptr<CRect> getNewIntersection(const CRect &a, const CRect &b);

    SNativeRect toNative() const { return {m_left, m_top, m_right, m_bottom}; }
    void fromNative(const SNativeRect &rect);

    Basics::CString toString() const;  ///< for files: "left,top,width,height"

private:
    void setEdges(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);

    static Basics::TClassRecord<CRect> s_class;

    std::int32_t m_width = 0, m_height = 0;
    std::int32_t m_left = 0, m_right = 0;
    std::int32_t m_top = 0, m_bottom = 0;
};

}  // namespace Tessitor::MathTools
