#include "dspclasses/Truncation.h"

#include <cmath>
#include <gtest/gtest.h>

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();

TEST(Truncation, GoesTowardsZero) {
    EXPECT_EQ(truncated(2.99f), 2);
    EXPECT_EQ(truncated(-2.99f), -2);
    EXPECT_EQ(truncated(-0.5f), 0);
    EXPECT_EQ(truncated(3.0f), 3);
}

TEST(Truncation, HoldsUpToTheEndsOfTheInteger) {
    EXPECT_EQ(truncated(2147483520.0f), 2147483520);
    EXPECT_EQ(truncated(-2147483648.0f), least);
}

TEST(Truncation, GivesTheLeastIntegerForWhatNoIntegerHolds) {
    EXPECT_EQ(truncated(2147483648.0f), least);
    EXPECT_EQ(truncated(-3e9f), least);
    EXPECT_EQ(truncated(INFINITY), least);
    EXPECT_EQ(truncated(NAN), least);
}
