#include "corvel/audio/GatedLoudness.h"

#include "corvel/audio/CLoudness.h"
#include "tools/support/AudioFiles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Tessitor::Tool;

namespace {

/// Speech in a room: a voice of 2 s, then a noise floor `floor` dB below it, of 4 s.
SSound speech(double floor) {
    SSound sound = voice(1, 2 * 44100);
    const SSound noise = voice(2, 4 * 44100);
    for (const double sample : noise.samples)
        sound.samples.push_back(sample * std::pow(10.0, floor / 20.0));
    return sound;
}

CLoudness meterOf(const SSound &sound, double gain) {
    std::vector<double> samples = sound.samples;
    for (double &sample : samples)
        sample *= std::pow(10.0, gain / 20.0);
    CLoudness meter(44100, 2, {.blocks = true});
    meter.add(samples.data(), sound.frames());
    return meter;
}

}  // namespace

TEST(GatedLoudness, EqualsTheMeasurementAfterTheGain) {
    for (const double floor : {0.0, -9.0, -12.0, -60.0, -100.0}) {
        const SSound sound = speech(floor);
        const CLoudness meter = meterOf(sound, 0.0);
        for (const double gain : {0.0, -50.0, -44.0, 20.0}) {
            const auto expected = meterOf(sound, gain).finish().integrated;
            EXPECT_NEAR(*gatedLoudness(meter.blocks(), gain), *expected, 1e-6)
                << floor << " dB, gain " << gain;
        }
        EXPECT_FALSE(gatedLoudness(meter.blocks(), -80.0));
    }
}

TEST(GatedLoudness, DoesNotSimplyFollowTheGain) {
    // Blocks 9 dB below the others fall below -70 LUFS.
    const std::vector<double> blocks = {-20.0, -29.0};
    EXPECT_NEAR(*gatedLoudness(blocks, 0.0), -22.496, 1e-3);
    EXPECT_NEAR(*gatedLoudness(blocks, -45.0), -65.0, 1e-9);
}

TEST(GatedLoudness, BlocksTenBelowTheRestDoNotCount) {
    EXPECT_NEAR(*gatedLoudness({-20.0, -20.0, -40.0}, 0.0), -20.0, 1e-9);
    EXPECT_NEAR(*gatedLoudness({-20.0, -20.0, -20.0, -29.0}, 0.0), -21.071, 1e-3);
}

TEST(GatedLoudness, SilenceHasNone) {
    constexpr double silence = -std::numeric_limits<double>::infinity();
    EXPECT_FALSE(gatedLoudness({}, 0.0));
    EXPECT_FALSE(gatedLoudness({silence, silence}, 40.0));
    EXPECT_FALSE(gatedLoudness({-70.1}, 0.0));
    EXPECT_FALSE(gainForLoudness({}, -16.0));
    EXPECT_FALSE(gainForLoudness({silence}, -16.0));
}

TEST(GatedLoudness, TheGainReachesItsTarget) {
    for (const double floor : {0.0, -9.0, -12.0, -60.0}) {
        const SSound sound = speech(floor);
        for (const double level : {0.0, -40.0, -52.0}) {
            const CLoudness meter = meterOf(sound, level);
            for (const double target : {-5.0, -16.0, -23.0, -50.0}) {
                const double gain = *gainForLoudness(meter.blocks(), target);
                EXPECT_NEAR(*meterOf(sound, level + gain).finish().integrated, target, 1e-6)
                    << floor << " dB, level " << level;
            }
        }
    }
}

TEST(GatedLoudness, ATargetThatNoGainReachesIsApproached) {
    // The gain that lets the second block pass the gate lowers the loudness by 2.5 dB.
    const std::vector<double> blocks = {-20.0, -29.0};
    const double gain = *gainForLoudness(blocks, -62.0);
    EXPECT_NEAR(*gatedLoudness(blocks, gain), -62.0, 2.5);
}
