#include "foundation/NormalisedInteger.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Tessitor::MathTools;

namespace {

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();

TEST(NormalisedInteger, KeepsTheMaximumBelowOne) {
    EXPECT_DOUBLE_EQ(integerToNormalised(0, 10, 10), 0.99999);
    EXPECT_EQ(normalisedToInteger(0, 10, 0.99999), 10);
    EXPECT_EQ(normalisedToInteger(0, 10, 1.0), 10);
}

TEST(NormalisedInteger, RoundsUp) {
    EXPECT_EQ(normalisedToInteger(0, 10, 0.0), 0);
    EXPECT_EQ(normalisedToInteger(0, 10, 0.01), 1);
    EXPECT_EQ(normalisedToInteger(0, 10, 0.1), 1);
    EXPECT_EQ(normalisedToInteger(-5, 5, 0.25), -2);
}

TEST(NormalisedInteger, ConvertsBackToTheSameInteger) {
    for (std::int32_t index = -3; index <= 20; ++index)
        EXPECT_EQ(normalisedToInteger(-3, 20, integerToNormalised(-3, 20, index)), index);
}

TEST(NormalisedInteger, MapsTheWholeRange) {
    EXPECT_EQ(normalisedToInteger(least, greatest, 0.0), least);
    EXPECT_EQ(normalisedToInteger(least, greatest, 1.0), greatest);
    EXPECT_DOUBLE_EQ(integerToNormalised(least, greatest, greatest), 0.99999);
}

TEST(NormalisedInteger, AnOverflowReturnsTheSmallestInteger) {
    EXPECT_EQ(normalisedToInteger(0, greatest, 2.0), least);
    EXPECT_EQ(normalisedToInteger(0, 10, std::nan("")), least);
}

TEST(NormalisedInteger, AnEmptyRangeReturnsInfinityOrNaN) {
    EXPECT_TRUE(std::isnan(integerToNormalised(3, 3, 3)));
    EXPECT_TRUE(std::isinf(integerToNormalised(3, 3, 4)));
    EXPECT_EQ(normalisedToInteger(3, 3, 0.7), 3);
}

}  // namespace
