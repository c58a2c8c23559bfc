#include "foundation/CRect.h"

#include "foundation/Description.h"

#include <gtest/gtest.h>
#include <limits>

using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CRect;

namespace {

constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();

/// "[left,top,width,height]", with " out of step" added if right and bottom do not agree.
std::string textOf(const CRect &rect) {
    std::string text = descriptionOf(rect);
    if (std::int64_t{rect.getLeft()} + rect.getWidth() != rect.getRight() ||
        std::int64_t{rect.getTop()} + rect.getHeight() != rect.getBottom())
        text += " out of step";
    return text;
}

TEST(CRect, KnowsItsFarEdges) {
    CRect rect(10, 20, 5, 6);
    EXPECT_EQ(rect.getRight(), 15);
    EXPECT_EQ(rect.getBottom(), 26);
    rect.setLeft(20);
    EXPECT_EQ(rect.getRight(), 25);
    rect.setTop(40);
    EXPECT_EQ(rect.getBottom(), 46);
    EXPECT_EQ(textOf(rect), "[20,40,5,6]");
}

TEST(CRect, IsBuiltFromAPositionAndASize) {
    EXPECT_EQ(textOf(CRect(CPoint(1, 2), CDimension(3, 4))), "[1,2,3,4]");
    EXPECT_EQ(textOf(CRect()), "[0,0,0,0]");
    EXPECT_EQ(textOf(CRect(CRect(1, 2, 3, 4))), "[1,2,3,4]");
}

TEST(CRect, EverySetterKeepsTheRest) {
    CRect rect(1, 2, 3, 4);
    rect.setWidth(30);
    EXPECT_EQ(textOf(rect), "[1,2,30,4]");
    rect.setHeight(40);
    EXPECT_EQ(textOf(rect), "[1,2,30,40]");
    rect.setOrigin(CPoint(10, 20));
    EXPECT_EQ(textOf(rect), "[10,20,30,40]");
    rect.setDimension(CDimension(5, 6));
    EXPECT_EQ(textOf(rect), "[10,20,5,6]");
    rect.setRect(4, 3, 2, 1);
    EXPECT_EQ(textOf(rect), "[4,3,2,1]");
}

TEST(CRect, Moves) {
    CRect rect(1, 2, 3, 4);
    rect.offset(CPoint(10, -20));
    EXPECT_EQ(textOf(rect), "[11,-18,3,4]");
}

TEST(CRect, InsetMovesEveryEdge) {
    CRect rect(0, 0, 10, 10);
    rect.inset(2);
    EXPECT_EQ(textOf(rect), "[2,2,6,6]");
    rect.inset(-3);
    EXPECT_EQ(textOf(rect), "[-1,-1,12,12]");
    rect.inset(7);
    EXPECT_EQ(textOf(rect), "[6,6,-2,-2]");
}

TEST(CRect, ScalingTruncates) {
    CRect rect(3, -3, 5, 7);
    rect.scale(0.5);
    EXPECT_EQ(textOf(rect), "[1,-1,2,3]");
    rect.scale(-2.0);
    EXPECT_EQ(textOf(rect), "[-2,2,-4,-6]");
}

TEST(CRect, CentreIsHalfTheSizeFromTheOrigin) {
    EXPECT_EQ(CRect(10, 20, 5, 8).getCentreX(), 12);
    EXPECT_EQ(CRect(10, 20, 5, 8).getCentreY(), 24);
    EXPECT_EQ(CRect(-10, 0, -5, 0).getCentreX(), -12);
    EXPECT_EQ(CRect(0, -10, 0, -5).getCentreY(), -12);
}

TEST(CRect, WrapsAtTheEndsOfTheRange) {
    CRect rect(greatest, 0, 1, 1);
    EXPECT_EQ(rect.getRight(), std::numeric_limits<std::int32_t>::min());
    rect.offset(CPoint(1, greatest));
    EXPECT_EQ(rect.getLeft(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(rect.getBottom(), std::numeric_limits<std::int32_t>::min());
}

TEST(CRect, RectanglesThatShareAnEdgeIntersect) {
    const CRect rect(10, 10, 10, 10);
    EXPECT_TRUE(CRect::intersects(rect, CRect(20, 10, 5, 5)));
    EXPECT_TRUE(CRect::intersects(rect, CRect(10, 20, 5, 5)));
    EXPECT_TRUE(CRect::intersects(rect, CRect(5, 10, 5, 5)));
    EXPECT_TRUE(CRect::intersects(rect, CRect(10, 5, 5, 5)));
    EXPECT_TRUE(CRect::intersects(rect, CRect(20, 20, 5, 5)));
    EXPECT_TRUE(CRect::intersects(rect, CRect(12, 12, 1, 1)));
}

TEST(CRect, RectanglesApartOnAnySideDoNotIntersect) {
    const CRect rect(10, 10, 10, 10);
    EXPECT_FALSE(CRect::intersects(rect, CRect(21, 10, 5, 5)));
    EXPECT_FALSE(CRect::intersects(rect, CRect(10, 21, 5, 5)));
    EXPECT_FALSE(CRect::intersects(rect, CRect(4, 10, 5, 5)));
    EXPECT_FALSE(CRect::intersects(rect, CRect(10, 4, 5, 5)));
}

TEST(CRect, IntersectionIsWhatBothCover) {
    CRect common;
    CRect::getIntersection(CRect(0, 0, 10, 20), CRect(5, 6, 20, 8), common);
    EXPECT_EQ(textOf(common), "[5,6,5,8]");
    EXPECT_EQ(textOf(*CRect::getNewIntersection(CRect(0, 0, 10, 20), CRect(5, 6, 20, 8))),
              "[5,6,5,8]");
}

TEST(CRect, IntersectionOfRectanglesApartHasANegativeSize) {
    CRect common;
    CRect::getIntersection(CRect(0, 0, 10, 10), CRect(15, 2, 5, 5), common);
    EXPECT_EQ(textOf(common), "[15,2,-5,5]");
}

TEST(CRect, NewIntersectionOfRectanglesApartIsZero) {
    EXPECT_EQ(textOf(*CRect::getNewIntersection(CRect(0, 0, 10, 10), CRect(15, 2, 5, 5))),
              "[0,0,0,0]");
    EXPECT_EQ(textOf(*CRect::getNewIntersection(CRect(0, 0, 10, 10), CRect(2, 15, 5, 5))),
              "[0,0,0,0]");
    EXPECT_EQ(textOf(*CRect::getNewIntersection(CRect(0, 0, 10, 10), CRect(10, 2, 5, 5))),
              "[10,2,0,5]");
}

TEST(CRect, IntersectionMayOverwriteAnOperand) {
    CRect rect(0, 0, 10, 10);
    CRect::getIntersection(rect, CRect(5, 5, 10, 10), rect);
    EXPECT_EQ(textOf(rect), "[5,5,5,5]");
}

TEST(CRect, UnionAtTheOriginHoldsBoth) {
    CRect rect(0, 0, 10, 10);
    rect.unionWith(CRect(5, 5, 10, 20));
    EXPECT_EQ(textOf(rect), "[0,0,15,25]");
}

TEST(CRect, UnionUsesItsRightEdgeAsAWidth) {
    CRect rect(10, 20, 10, 10);
    rect.unionWith(CRect(12, 22, 2, 2));
    EXPECT_EQ(textOf(rect), "[10,20,20,30]");
    rect.setRect(10, 20, 10, 10);
    rect.unionWith(CRect(5, 6, 50, 60));
    EXPECT_EQ(textOf(rect), "[5,6,50,60]");
}

TEST(CRect, AllFourEdgesAreInside) {
    const CRect rect(10, 20, 5, 6);
    for (const CPoint &point : {CPoint(10, 20), CPoint(15, 26), CPoint(12, 23)})
        EXPECT_TRUE(rect.pointIsInside(point)) << descriptionOf(point);
    for (const CPoint &point : {CPoint(9, 20), CPoint(10, 19), CPoint(16, 26), CPoint(15, 27)})
        EXPECT_FALSE(rect.pointIsInside(point)) << descriptionOf(point);
}

TEST(CRect, ReadsItsTextFormBack) {
    const CRect rect(-1, 2, 300, 4000);
    EXPECT_STREQ(rect.toString().getString(), "-1,2,300,4000");
    EXPECT_EQ(textOf(CRect(rect.toString())), "[-1,2,300,4000]");
}

TEST(CRect, AnythingButFourTokensIsAllZero) {
    for (const char *text : {"", "1", "1,2,3", "1,2,3,4,5", "1;2;3;4"})
        EXPECT_EQ(textOf(CRect(Tessitor::Basics::CString(text))), "[0,0,0,0]") << text;
}

TEST(CRect, ConvertsToAndFromANativeRectangle) {
    const SNativeRect native = CRect(10, 20, 5, 6).toNative();
    EXPECT_EQ(native.left, 10);
    EXPECT_EQ(native.top, 20);
    EXPECT_EQ(native.right, 15);
    EXPECT_EQ(native.bottom, 26);
    CRect rect;
    rect.fromNative({-3, -4, 30, 40});
    EXPECT_EQ(textOf(rect), "[-3,-4,33,44]");
}

TEST(CRect, EveryConstructorCounts) {
    const CRect rect;
    EXPECT_TRUE(rect.getClass() == "CRect");
    const auto instances = rect.getClass().getInstanceCount();
    {
        const CRect copy(rect), text(rect.toString()), parts{CPoint(), CDimension()};
        EXPECT_EQ(rect.getClass().getInstanceCount(), instances + 3);
    }
    EXPECT_EQ(rect.getClass().getInstanceCount(), instances);
}

}  // namespace
