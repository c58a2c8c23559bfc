#include "dspclasses/modules/CDSPGain.h"

#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/support/Matrix.h"
#include "dspclasses/support/Oracle.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>

using enum CDSPGain::EParameter;

static double factorOf(CDSPGain &gain) {
    return matrixOf(gain).leftToLeft;
}

TEST(CDSPGain, StartsAtUnity) {
    CDSPGain gain;
    EXPECT_EQ(gain.getParameter(kLevel), 0.0f);
    EXPECT_EQ(matrixOf(gain), (SMatrix{1.0, 0.0, 0.0, 1.0}));
}

TEST(CDSPGain, IsSilentAtMinusSixtyAndBelow) {
    CDSPGain gain;
    for (const float decibels : {-60.0f, -60.1f, -1000.0f}) {
        gain.setParameter(kLevel, decibels);
        EXPECT_EQ(factorOf(gain), 0.0) << decibels;
        EXPECT_EQ(gain.getParameter(kLevel), decibels);
        gain.setParameter(kLevel, 0.0f);
    }
}

TEST(CDSPGain, IsNotSilentJustAboveMinusSixty) {
    CDSPGain gain;
    gain.setParameter(kLevel, -59.9f);
    EXPECT_NEAR(factorOf(gain), 0.0010116, 1e-6);
}

TEST(CDSPGain, TurnsDecibelsIntoAFactor) {
    CDSPGain gain;
    for (const float decibels : {-40.0f, -20.0f, -6.0f, 6.0f, 20.0f}) {
        gain.setParameter(kLevel, decibels);
        EXPECT_NEAR(factorOf(gain) / std::pow(10.0, decibels / 20.0), 1.0, 1e-6) << decibels;
    }
}

TEST(CDSPGain, FollowsAnotherThreadWithinABlock) {
    constexpr int frames = 1 << 16, mostBlocks = 10000;
    CDSPGain gain;
    std::atomic<bool> isDone = false;
    std::jthread changes([&] {
        for (float decibels = 0.0f; !isDone; decibels = 6.0f - decibels)
            gain.setParameter(kLevel, decibels);
    });
    const TStereo<float> ones = steady(frames, 1.0f, 1.0f);
    const auto changesWithinABlock = [&] {
        const std::vector<float> left = render(gain, ones, frames).channels[0];
        return std::count(left.begin(), left.end(), left[0]) < frames;
    };
    int blocks = 1;
    while (blocks < mostBlocks && !changesWithinABlock())
        ++blocks;
    isDone = true;
    EXPECT_LT(blocks, mostBlocks);
}

TEST(CDSPGain, IgnoresTheIndex) {
    CDSPGain gain;
    gain.setParameter(5, -6.0f);
    EXPECT_EQ(gain.getParameter(9), -6.0f);
}

TEST(CDSPGain, IgnoresMinusZeroAfterZero) {
    CDSPGain gain;
    gain.setParameter(kLevel, -0.0f);
    EXPECT_FALSE(std::signbit(gain.getParameter(kLevel)));
    gain.setParameter(kLevel, -6.0f);
    gain.setParameter(kLevel, -0.0f);
    EXPECT_TRUE(std::signbit(gain.getParameter(kLevel)));
    EXPECT_EQ(factorOf(gain), 1.0);
}

TEST(CDSPGain, HasNothingToReset) {
    CDSPGain gain;
    gain.setParameter(kLevel, -6.0f);
    const double before = factorOf(gain);
    gain.reset();
    EXPECT_EQ(factorOf(gain), before);
}

TEST(CDSPGain, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPGain>(); },
                   [] { return std::make_unique<CPlainGain>(); }, {{kLevel, -60.0f, 6.0f}});
}
