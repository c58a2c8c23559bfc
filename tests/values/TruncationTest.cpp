#include "values/Truncation.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

TEST(Truncation, RoundsTowardsZero) {
    EXPECT_EQ(truncated(2.99f), 2);
    EXPECT_EQ(truncated(-2.99f), -2);
    EXPECT_EQ(truncated(-0.5f), 0);
    EXPECT_EQ(truncated(3.0f), 3);
    EXPECT_EQ(truncated(2.9), 2);
    EXPECT_EQ(truncated(-2.9), -2);
}

TEST(Truncation, CoversTheWholeRangeOfTheInteger) {
    EXPECT_EQ(truncated(2147483520.0f), 2147483520);
    EXPECT_EQ(truncated(-2147483648.0f), smallest);
    EXPECT_EQ(truncated(2147483647.9), largest);
    EXPECT_EQ(truncated(-2147483648.9), smallest);
}

TEST(Truncation, ReturnsTheSmallestIntegerForValuesOutsideTheRange) {
    EXPECT_EQ(truncated(2147483648.0), smallest);
    EXPECT_EQ(truncated(-2147483649.0), smallest);
    EXPECT_EQ(truncated(2147483648.0f), smallest);
    EXPECT_EQ(truncated(-3e9f), smallest);
    EXPECT_EQ(truncated(INFINITY), smallest);
    EXPECT_EQ(truncated(-INFINITY), smallest);
    EXPECT_EQ(truncated(NAN), smallest);
}

}  // namespace
