#include "corvel/audio/CLoudness.h"

#include "corvel/audio/GatedLoudness.h"
#include "tools/support/AudioFiles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

using namespace Tessitor::Tool;

namespace {

constexpr int rate = 48000;

SSound sine(double frequency, double amplitude, double seconds, int channels = 2,
            double phase = 0.0) {
    SSound sound;
    sound.sampleRate = rate;
    sound.channels = channels;
    for (int i = 0; i < static_cast<int>(seconds * rate); ++i)
        for (int channel = 0; channel < channels; ++channel)
            sound.samples.push_back(
                amplitude * std::sin(2.0 * std::numbers::pi * frequency * i / rate + phase));
    return sound;
}

CLoudness meterOf(const SSound &sound) {
    CLoudness meter(sound.sampleRate, sound.channels,
                    {.truePeak = true, .blocks = true, .shortTerm = true});
    meter.add(sound.samples.data(), sound.frames());
    return meter;
}

SLoudness measure(const SSound &sound) {
    return meterOf(sound).finish();
}

double amplitude(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

}  // namespace

// Test signals 1 and 2 of EBU Tech 3341 and the same in one channel
TEST(CLoudness, SinesHaveTheLoudnessOfTheStandard) {
    EXPECT_NEAR(*measure(sine(1000.0, amplitude(-23.0), 20.0)).integrated, -23.0, 0.1);
    EXPECT_NEAR(*measure(sine(1000.0, amplitude(-33.0), 20.0)).integrated, -33.0, 0.1);
    EXPECT_NEAR(*measure(sine(1000.0, amplitude(-23.0), 20.0, 1)).integrated, -26.0, 0.1);
}

TEST(CLoudness, TheTruePeakLiesBetweenSamples) {
    // Each sample is at 45 degrees from a peak, 3 dB below it.
    const SSound sound = sine(rate / 4.0, 0.5, 1.0, 2, std::numbers::pi / 4.0);
    EXPECT_NEAR(*measure(sound).truePeak, -6.02, 0.2);
}

TEST(CLoudness, TheTruePeakOfEitherChannelCounts) {
    for (const std::size_t channel : {0u, 1u}) {
        SSound sound = sine(1000.0, 0.1, 1.0);
        sound.samples[2000 + channel] = -0.5;
        EXPECT_GT(*measure(sound).truePeak, -6.03);
    }
}

TEST(CLoudness, ATruePeakInTheLastFrameCounts) {
    SSound sound = sine(1000.0, 0.01, 1.0, 1);
    sound.samples[sound.samples.size() - 2] = sound.samples.back() = 0.5;
    EXPECT_GT(*measure(sound).truePeak, -5.0);
}

TEST(CLoudness, SilenceHasNone) {
    const SLoudness silence = measure(sine(1000.0, 0.0, 2.0));
    EXPECT_FALSE(silence.integrated);
    EXPECT_FALSE(silence.truePeak);
    const SLoudness nothing = measure(sine(1000.0, 1.0, 0.0));
    EXPECT_FALSE(nothing.integrated);
    EXPECT_FALSE(nothing.truePeak);
}

TEST(CLoudness, LessThanABlockHasATruePeakOnly) {
    const SLoudness little = measure(sine(1000.0, 0.5, 0.3999));
    EXPECT_FALSE(little.integrated);
    EXPECT_NEAR(*little.truePeak, -6.02, 0.1);
    EXPECT_TRUE(measure(sine(1000.0, 0.5, 0.4)).integrated);
}

TEST(CLoudness, SoundThatIsNotFiniteHasNone) {
    for (const double odd :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        for (const std::size_t place : {0u, 3u, 95999u, 191999u}) {
            SSound sound = sine(1000.0, 0.5, 2.0);
            sound.samples[place] = odd;
            const SLoudness loudness = measure(sound);
            EXPECT_FALSE(loudness.integrated) << odd << " at " << place;
            EXPECT_FALSE(loudness.truePeak) << odd << " at " << place;
        }
    }
}

TEST(CLoudness, ARateThatTheLibraryRefusesHasNone) {
    SSound sound = sine(1.0, 0.5, 1.0);
    sound.sampleRate = 8;
    const SLoudness loudness = measure(sound);
    EXPECT_FALSE(loudness.integrated);
    EXPECT_FALSE(loudness.truePeak);
}

class CLoudnessParts : public testing::TestWithParam<std::size_t> {};

TEST_P(CLoudnessParts, TheLengthOfThePartsDoesNotMatter) {
    const SSound sound = voice(3, 5 * 44100);
    CLoudness whole = meterOf(sound);
    CLoudness parts(44100, 2, {.truePeak = true, .blocks = true, .shortTerm = true});
    for (std::size_t done = 0; done < sound.frames(); done += GetParam())
        parts.add(sound.samples.data() + 2 * done, std::min(GetParam(), sound.frames() - done));
    EXPECT_EQ(parts.blocks(), whole.blocks());
    EXPECT_EQ(parts.shortTerm(), whole.shortTerm());
    const SLoudness expected = whole.finish(), found = parts.finish();
    EXPECT_EQ(found.integrated, expected.integrated);
    EXPECT_EQ(found.truePeak, expected.truePeak);
}
INSTANTIATE_TEST_SUITE_P(Lengths, CLoudnessParts, testing::Values(1, 333, 4410, 16384, 100000));

TEST(CLoudness, SinglesAndDoublesMeasureTheSame) {
    const SSound sound = voice(3, 44100);
    const std::vector<float> singles(sound.samples.begin(), sound.samples.end());
    CLoudness meter(44100, 2, {.truePeak = true});
    meter.add(singles.data(), sound.frames());
    const SLoudness expected = measure(sound), found = meter.finish();
    EXPECT_NEAR(*found.integrated, *expected.integrated, 1e-9);
    EXPECT_NEAR(*found.truePeak, *expected.truePeak, 1e-6);
}

TEST(CLoudness, NothingIsMeasuredThatWasNotAskedFor) {
    CLoudness meter(rate, 2, {});
    const SSound sound = sine(1000.0, 0.5, 5.0);
    meter.add(sound.samples.data(), sound.frames());
    EXPECT_TRUE(meter.blocks().empty());
    EXPECT_TRUE(meter.shortTerm().empty());
    EXPECT_FALSE(meter.finish().truePeak);
}

TEST(CLoudness, BlocksBeginEvery100MillisecondsAndLast400) {
    SSound sound = sine(1000.0, amplitude(-23.0), 1.0);
    sound.samples.resize(2 * 2 * rate, 0.0);
    const CLoudness meter = meterOf(sound);
    const std::vector<double> &blocks = meter.blocks();
    ASSERT_EQ(blocks.size(), 17u);
    EXPECT_NEAR(blocks[6], -23.0, 0.1);
    EXPECT_NEAR(blocks[8], -26.0, 0.1);  // half of it is silent
    EXPECT_LT(blocks[12], -70.0);
}

TEST(CLoudness, TheShortTermLoudnessIsThatOfTheLastThreeSeconds) {
    SSound sound = sine(1000.0, amplitude(-23.0), 3.0);
    sound.samples.resize(2 * 6 * rate, 0.0);
    const CLoudness meter = meterOf(sound);
    const std::vector<float> &curve = meter.shortTerm();
    ASSERT_EQ(curve.size(), 60u);
    EXPECT_LT(curve[2], -70.0f);          // less than a block
    EXPECT_NEAR(curve[3], -23.0f, 0.2f);  // of the first 400 ms only
    EXPECT_NEAR(curve[29], -23.0f, 0.1f);
    EXPECT_NEAR(curve[44], -26.0f, 0.1f);
    EXPECT_LT(curve[59], -70.0f);
}
