#include "dspclasses/modules/ReverbDecay.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(ReverbDecay, FallsBy60DecibelsInTheReverbTime) {
    constexpr float sampleRate = 44100.0f;
    for (const float seconds : {0.2f, 1.0f, 2.0f, 8.0f}) {
        const double decay = decayPerSample(seconds, sampleRate);
        EXPECT_NEAR(20.0 * std::log10(decay) * double{seconds * sampleRate}, -60.0, 1e-6)
            << seconds;
        // The power is computed from the decay in single precision.
        const float gain = decayAfter(seconds * sampleRate, decay);
        EXPECT_NEAR(20.0 * std::log10(double{gain}), -60.0, 0.1) << seconds;
    }
}

TEST(ReverbDecay, IsOneAfterNoTime) {
    EXPECT_EQ(decayAfter(0.0f, decayPerSample(2.0f, 44100.0f)), 1.0f);
}
