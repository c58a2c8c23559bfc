#include "dspclasses/blocks/DynamicsMath.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(DynamicsMath, LinearFromDecibelsIsAFactorOfTenPerTwentyDecibels) {
    EXPECT_EQ(linearFromDecibels(0.0f), 1.0f);
    for (float decibels = -120.0f; decibels <= 60.0f; decibels += 0.7f) {
        const double factor = std::pow(10.0, double{decibels} / 20.0);
        EXPECT_NEAR(linearFromDecibels(decibels) / factor, 1.0, 1e-6) << decibels;
    }
}

TEST(DynamicsMath, SmoothingCoefficientLeavesOneOverEAfterTheTimeConstant) {
    for (const float sampleRate : {44100.0f, 96000.0f}) {
        for (const float ms : {1.0f, 2.0f, 15.0f, 100.0f, 1000.0f}) {
            const double frames = double{ms} * double{sampleRate} / 1000.0;
            const double left =
                std::pow(double{smoothingCoefficient(ms, sampleRate)}, frames) * std::exp(1.0);
            // The formula is of first order in 1 / frames, and a float has 24 bits.
            EXPECT_NEAR(left, 1.0, 0.6 / frames + frames * 0x1p-24) << ms << " ms";
            EXPECT_LT(left, 1.0 + frames * 0x1p-24) << ms << " ms";
        }
    }
}

TEST(DynamicsMath, SmoothingCoefficientIsNegativeBelowOneFrame) {
    EXPECT_EQ(smoothingCoefficient(1.0f, 1000.0f), 0.0f);
    EXPECT_LT(smoothingCoefficient(0.5f, 1000.0f), 0.0f);
}
