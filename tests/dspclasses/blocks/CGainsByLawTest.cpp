#include "dspclasses/blocks/CGainsByLaw.h"

#include "dspclasses/support/Signals.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(SGainLaw, ReturnsTheOffsetWhileInactiveAndFollowsTheSlopeWhileActive) {
    const SGainLaw law{-0.5f, 6.0f, linearFromDecibels(6.0f)};
    EXPECT_EQ(law.gain(false, 20.0f).decibels, 6.0f);
    EXPECT_EQ(law.gain(false, 20.0f).linear, linearFromDecibels(6.0f));
    EXPECT_EQ(law.gain(true, 20.0f).decibels, -4.0f);
    EXPECT_EQ(law.gain(true, 20.0f).linear, linearFromDecibels(-4.0f));
}

TEST(CGainsByLaw, ReturnsTheGainOfTheLawForEachFrame) {
    CRandom random(1);
    const auto draw = [&random](double low, double high) {
        return static_cast<float>(random.real(low, high));
    };
    const auto drawFour = [&draw](double low, double high) {
        return Floats4{draw(low, high), draw(low, high), draw(low, high), draw(low, high)};
    };
    for (int i = 0; i < 10000; ++i) {
        const SGainLaw law{draw(-1.0, 1.0), draw(-12.0, 12.0), draw(0.0, 4.0)};
        const SDetected detected{drawFour(-1.0, 1.0) > 0.0f, drawFour(-1.0, 60.0)};
        CGainsByLaw<SNarrowLanes> gains;
        gains.start(law, detected);
        const Floats4 linear = gains.finish(law);
        for (int lane = 0; lane < 4; ++lane) {
            const SGain expected =
                law.gain(detected.areActive[lane] != 0, detected.smoothedExcessesDb[lane]);
            ASSERT_TRUE(sameBits(linear[lane], expected.linear)) << "lane " << lane;
        }
    }
}
