#include "dspclasses/blocks/WholeCount.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(WholeCount, DropsTheFraction) {
    EXPECT_EQ(wholeCount(0.99f), 0u);
    EXPECT_EQ(wholeCount(44100.5f), 44100u);
    EXPECT_EQ(wholeCount(-0.5f), 0u);
}

TEST(WholeCount, CountsBeyondASignedInteger) {
    EXPECT_EQ(wholeCount(3e9f), 3000000000u);
    EXPECT_EQ(wholeCount(4294967040.0f), 4294967040u);
}

TEST(WholeCount, KeepsTheLow32BitsOfALargerCount) {
    EXPECT_EQ(wholeCount(-1.0f), 0xffffffffu);
    EXPECT_EQ(wholeCount(0x1p32f), 0u);
    EXPECT_EQ(wholeCount(0x1.000002p33f), 1024u);
}

TEST(WholeCount, ReturnsZeroForInfinitiesNaNsAndHugeValues) {
    EXPECT_EQ(wholeCount(INFINITY), 0u);
    EXPECT_EQ(wholeCount(-INFINITY), 0u);
    EXPECT_EQ(wholeCount(NAN), 0u);
    EXPECT_EQ(wholeCount(0x1p63f), 0u);
}
