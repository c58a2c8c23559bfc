#include "foundation/CPoint.h"

#include "foundation/Description.h"

#include <gtest/gtest.h>
#include <limits>

using Tessitor::MathTools::CPoint;

namespace {

constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();

TEST(CPoint, StoresItsPosition) {
    CPoint point(3, -4);
    EXPECT_EQ(descriptionOf(point), "[3,-4]");
    point.setPoint(5, 6);
    EXPECT_EQ(descriptionOf(point), "[5,6]");
    point.setXPosition(7);
    point.setYPosition(8);
    EXPECT_EQ(point.getXPosition(), 7);
    EXPECT_EQ(point.getYPosition(), 8);
    EXPECT_EQ(descriptionOf(CPoint()), "[0,0]");
    EXPECT_EQ(descriptionOf(CPoint(point)), "[7,8]");
}

TEST(CPoint, CutsItsDescription) {
    char text[4];
    CPoint(10, 20).getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "[10");
}

TEST(CPoint, Moves) {
    CPoint point(1, 2);
    point.offset(10, 20);
    EXPECT_EQ(point, CPoint(11, 22));
    point.offset(CPoint(-1, -2));
    EXPECT_EQ(point, CPoint(10, 20));
    point += CPoint(1, 2);
    EXPECT_EQ(point, CPoint(11, 22));
    point -= CPoint(2, 1);
    EXPECT_EQ(point, CPoint(9, 21));
    point += point;
    EXPECT_EQ(point, CPoint(18, 42));
    point -= point;
    EXPECT_EQ(point, CPoint());
}

TEST(CPoint, WrapsAtTheEndsOfTheRange) {
    CPoint point(greatest, least);
    point.offset(1, -1);
    EXPECT_EQ(point, CPoint(least, greatest));
    point -= CPoint(1, -1);
    EXPECT_EQ(point, CPoint(greatest, least));
}

TEST(CPoint, EqualsOnlyAPointAtTheSamePosition) {
    EXPECT_TRUE(CPoint(1, 2) == CPoint(1, 2));
    EXPECT_FALSE(CPoint(1, 2) == CPoint(1, 3));
    EXPECT_FALSE(CPoint(1, 2) == CPoint(3, 2));
}

TEST(CPoint, SharesACoordinateInTheSameRowOrColumn) {
    EXPECT_TRUE(CPoint(1, 2).hasCommonCoordinate(CPoint(9, 2)));
    EXPECT_TRUE(CPoint(1, 2).hasCommonCoordinate(CPoint(1, 9)));
    EXPECT_FALSE(CPoint(1, 2).hasCommonCoordinate(CPoint(2, 1)));
}

TEST(CPoint, EveryConstructorCounts) {
    const CPoint point;
    EXPECT_TRUE(point.getClass() == "CPoint");
    const auto instances = point.getClass().getInstanceCount();
    {
        CPoint copy(point), another(1, 2);
        copy = another;
        EXPECT_EQ(point.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(point.getClass().getInstanceCount(), instances);
}

TEST(CPoint, ACopyStartsWithoutReferences) {
    CPoint point;
    point.reference();
    EXPECT_EQ(CPoint(point).getReferenceCount(), 0);
}

}  // namespace
