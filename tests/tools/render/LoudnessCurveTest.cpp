#include "corvel/render/LoudnessCurve.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Tessitor::Tool;

namespace {

constexpr float silence = -std::numeric_limits<float>::infinity();

}  // namespace

TEST(LoudnessCurve, HasAPointAtTheEndOfEach100Milliseconds) {
    const LoudnessCurve curve = loudnessCurve({-20.0f, -30.0f}, 1);
    ASSERT_EQ(curve.size(), 2u);
    EXPECT_DOUBLE_EQ(curve[0].x, 0.1);
    EXPECT_DOUBLE_EQ(curve[1].x, 0.2);
    EXPECT_NEAR(curve[0].y, -20.0, 1e-6);
    EXPECT_NEAR(curve[1].y, -30.0, 1e-6);
}

TEST(LoudnessCurve, SilenceIsAGap) {
    const LoudnessCurve curve = loudnessCurve({-69.9f, -70.1f, silence}, 1);
    EXPECT_FALSE(std::isnan(curve[0].y));
    EXPECT_TRUE(std::isnan(curve[1].y));
    EXPECT_TRUE(std::isnan(curve[2].y));
}

TEST(LoudnessCurve, ValuesAreAveragedByTheirEnergy) {
    const LoudnessCurve curve = loudnessCurve({-20.0f, silence, -20.0f, -20.0f, -23.0f}, 2);
    ASSERT_EQ(curve.size(), 3u);
    EXPECT_NEAR(curve[0].y, -23.01, 0.01);
    EXPECT_NEAR(curve[1].y, -20.0, 1e-6);
    EXPECT_NEAR(curve[2].y, -23.0, 1e-6);
    EXPECT_DOUBLE_EQ(curve[2].x, 0.5);
}

TEST(LoudnessCurve, TheDifferenceIsWhereBothAreHeard) {
    const LoudnessCurve before = loudnessCurve({-20.0f, silence, -20.0f}, 1);
    const LoudnessCurve after = loudnessCurve({-14.0f, -14.0f, silence, -14.0f}, 1);
    const LoudnessCurve found = difference(before, after);
    ASSERT_EQ(found.size(), 3u);
    EXPECT_NEAR(found[0].y, 6.0, 1e-6);
    EXPECT_TRUE(std::isnan(found[1].y));
    EXPECT_TRUE(std::isnan(found[2].y));
}

TEST(LoudnessCurve, ALongSoundHasAsManyPointsAsAPictureCanShow) {
    EXPECT_EQ(valuesPerPoint(0), 1u);
    EXPECT_EQ(valuesPerPoint(1200), 1u);
    EXPECT_EQ(valuesPerPoint(1201), 2u);
    EXPECT_EQ(valuesPerPoint(36000), 30u);
}
