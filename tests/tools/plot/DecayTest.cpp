#include "corvel/plot/Decay.h"

#include "corvel/settings/Chain.h"
#include "dspclasses/parameters/ParameterTable.h"
#include "tools/support/CMeasuredStrip.h"
#include "tools/support/Program.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

SDecay decayOf(const std::string &chain, const std::vector<std::string> &set = {}) {
    return measureDecay(CMeasuredStrip(chain, set).subject(), -20.0);
}

std::vector<std::string> delayOf(const std::string &feedback, const std::string &dry,
                                 const std::string &wet) {
    return {"DlyTime=500ms", "DlyFdBk=" + feedback, "DlyDry=" + dry, "DlyWet=" + wet};
}

}  // namespace

TEST(Decay, ModulesWithoutAMemoryHaveNoTail) {
    EXPECT_EQ(decayOf("none").tail, ETail::None);
    for (int slot = kFirstModuleSlot; slot < kSlotCount; ++slot) {
        if (slot == kDelaySlot || slot == kReverbSlot)
            continue;
        const SDecay decay =
            decayOf(std::string(moduleLabel(slot)), {"Mod1FdBk=0%", "Mod2FdBk=0%"});
        EXPECT_EQ(decay.tail, ETail::None) << moduleLabel(slot);
        EXPECT_TRUE(decay.seconds.empty());
    }
}

TEST(Decay, TheLowestRumbleFilterHasNoTail) {
    EXPECT_EQ(decayOf("Rumble Filter", {"RmblFreq=@0"}).tail, ETail::None);
}

TEST(Decay, OfAReverbTakesItsReverbTime) {
    for (const double seconds : {6.0, 8.0}) {
        const SDecay decay =
            decayOf("Reverb", {"RvTime=" + std::to_string(seconds) + "s", "RvWllDmp=@0"});
        EXPECT_EQ(decay.tail, ETail::Decays);
        ASSERT_TRUE(decay.fit.has_value());
        EXPECT_NEAR(decay.fit->reverberation, seconds, 0.02 * seconds);
        EXPECT_EQ(decay.fit->to, -35.0);
        ASSERT_TRUE(decay.secondsTo60.has_value());
        EXPECT_NEAR(*decay.secondsTo60, seconds, 0.07 * seconds);
        EXPECT_LT(decay.tailLevel, 0.0);
        EXPECT_GT(decay.tailLevel, -3.0);
    }
}

TEST(Decay, OfADelayFollowsItsFeedback) {
    const SDecay decay = decayOf("Delay", delayOf("50%", "-oo", "0dB"));
    ASSERT_TRUE(decay.fit.has_value());
    EXPECT_NEAR(decay.fit->reverberation, 0.5 * 60.0 / (20.0 * std::log10(2.0)), 0.05);
    // Each half second has a quarter of the energy of the one before.
    EXPECT_NEAR(decay.energies[50], 10.0 * std::log10(0.25), 0.1);
    EXPECT_DOUBLE_EQ(decay.seconds[50], 0.5);
    EXPECT_EQ(decay.energies[0], 0.0);
}

TEST(Decay, TheTailIsComparedWithTheSound) {
    const SDecay decay = decayOf("Delay", delayOf("0%", "0dB", "-20dB"));
    EXPECT_NEAR(decay.tailLevel, -20.0, 1.0);
    ASSERT_TRUE(decay.secondsTo60.has_value());
    EXPECT_NEAR(*decay.secondsTo60, 0.5, 0.02);
}

TEST(Decay, WhatDoesNotFadeHasNoReverbTime) {
    const SDecay decay = decayOf("Delay", delayOf("100%", "-oo", "0dB"));
    EXPECT_EQ(decay.tail, ETail::Persists);
    EXPECT_FALSE(decay.fit.has_value());
    EXPECT_FALSE(decay.secondsTo60.has_value());
    EXPECT_TRUE(decay.seconds.empty());
}

TEST(Decay, WhatFadesSlowlyIsFittedToTwentyFiveDecibels) {
    // 60 dB would take 33 seconds.
    const SDecay decay = decayOf("Delay", delayOf("90%", "-oo", "0dB"));
    EXPECT_EQ(decay.tail, ETail::Decays);
    ASSERT_TRUE(decay.fit.has_value());
    EXPECT_EQ(decay.fit->to, -25.0);
    EXPECT_NEAR(decay.fit->reverberation, 0.5 * 60.0 / (-20.0 * std::log10(0.9)), 1.5);
    EXPECT_FALSE(decay.secondsTo60.has_value());
}

TEST(Decay, OfSilenceIsUnknown) {
    EXPECT_EQ(decayOf("Gain", {"Gain=-oo"}).tail, ETail::Unknown);
    EXPECT_EQ(decayOf("Delay, Gain", {"Gain=-oo"}).tail, ETail::Unknown);
}

TEST(Decay, AGateCutsTheTail) {
    const SDecay open = decayOf("Reverb", {"RvTime=4s"});
    const SDecay gated = decayOf("Reverb, Gate", {"RvTime=4s", "GateThrsh=-30dB"});
    ASSERT_TRUE(open.secondsTo60.has_value() && gated.secondsTo60.has_value());
    EXPECT_LT(*gated.secondsTo60, 0.7 * *open.secondsTo60);
}

TEST(Decay, LatencyIsNotATail) {
    const CMeasuredStrip late("none", {}, testEffect("VeryLate"));
    EXPECT_EQ(measureDecay(late.subject(), -20.0).tail, ETail::None);
}
