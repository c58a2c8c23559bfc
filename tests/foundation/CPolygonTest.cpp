#include "foundation/CPolygon.h"

#include "foundation/Description.h"

#include <gtest/gtest.h>

using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CPolygon;

namespace {

CPolygon triangle() {
    CPolygon polygon(0);
    polygon.addPoint(CPoint(1, 2));
    polygon.addPoint(CPoint(3, 4));
    polygon.addPoint(CPoint(5, 6));
    return polygon;
}

std::string textOf(const CPolygon &polygon) {
    std::string text;
    for (int i = 0; i < polygon.getNumberOfPoints(); ++i)
        text += descriptionOf(*polygon.getPoint(i));
    return text;
}

TEST(CPolygon, StartsWithPointsAtZero) {
    EXPECT_EQ(textOf(CPolygon(3)), "[0,0][0,0][0,0]");
    EXPECT_EQ(CPolygon(0).getNumberOfPoints(), 0);
    EXPECT_EQ(CPolygon(-1).getNumberOfPoints(), 0);
}

TEST(CPolygon, AddsPointsAtTheEnd) {
    CPolygon polygon(1);
    polygon.addPoint(CPoint(7, 8));
    EXPECT_EQ(textOf(polygon), "[0,0][7,8]");
}

TEST(CPolygon, HasNoPointOutOfRange) {
    const CPolygon polygon(2);
    EXPECT_EQ(polygon.getPoint(-1), nullptr);
    EXPECT_EQ(polygon.getPoint(2), nullptr);
    EXPECT_EQ(polygon.getPoint(1000), nullptr);
}

TEST(CPolygon, MovesEveryPoint) {
    CPolygon polygon = triangle();
    polygon.offset(CPoint(10, -1));
    EXPECT_EQ(textOf(polygon), "[11,1][13,3][15,5]");
    polygon.offset(*polygon.getPoint(0));
    EXPECT_EQ(textOf(polygon), "[22,2][24,4][26,6]");
}

TEST(CPolygon, ACopyHasPointsOfItsOwn) {
    CPolygon polygon = triangle();
    const CPolygon copy(polygon);
    polygon.getPoint(0)->setPoint(9, 9);
    EXPECT_EQ(textOf(copy), "[1,2][3,4][5,6]");
}

TEST(CPolygon, AssignmentAdoptsTheNumberOfPoints) {
    CPolygon polygon(5);
    polygon = triangle();
    EXPECT_EQ(textOf(polygon), "[1,2][3,4][5,6]");
    polygon = CPolygon(0);
    EXPECT_EQ(polygon.getNumberOfPoints(), 0);
}

TEST(CPolygon, AssignmentOfTheSameNumberKeepsThePointObjects) {
    CPolygon polygon(3);
    const CPoint *const first = polygon.getPoint(0);
    polygon = triangle();
    EXPECT_EQ(polygon.getPoint(0), first);
    EXPECT_EQ(textOf(polygon), "[1,2][3,4][5,6]");
    const CPolygon &itself = polygon;
    polygon = itself;
    EXPECT_EQ(textOf(polygon), "[1,2][3,4][5,6]");
}

TEST(CPolygon, EqualsTheSamePositionsInTheSameOrder) {
    CPolygon polygon = triangle();
    EXPECT_TRUE(polygon == triangle());
    EXPECT_TRUE(CPolygon(0) == CPolygon(0));
    polygon.getPoint(2)->setYPosition(7);
    EXPECT_FALSE(polygon == triangle());
    EXPECT_FALSE(CPolygon(2) == CPolygon(3));
    EXPECT_FALSE(CPolygon(3) == CPolygon(2));
}

TEST(CPolygon, LeaksNothing) {
    const CPoint probe;
    const CPolygon other(0);
    EXPECT_TRUE(other.getClass() == "CPolygon");
    const auto points = probe.getClass().getInstanceCount();
    const auto polygons = other.getClass().getInstanceCount();
    {
        CPolygon polygon(40);
        polygon = triangle();
        const CPolygon copy(polygon);
        EXPECT_EQ(other.getClass().getInstanceCount(), polygons + 2);
        EXPECT_EQ(probe.getClass().getInstanceCount(), points + 6);
    }
    EXPECT_EQ(other.getClass().getInstanceCount(), polygons);
    EXPECT_EQ(probe.getClass().getInstanceCount(), points);
}

}  // namespace
