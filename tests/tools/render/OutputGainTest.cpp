#include "corvel/render/OutputGain.h"

#include "corvel/audio/CDither.h"
#include "corvel/audio/Quantise.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace Tessitor::Tool;

namespace {

template <typename Sample>
SSampleRange rangeOf(const std::vector<Sample> &samples) {
    SSampleRange range;
    range.add(samples.data(), samples.size());
    return range;
}

// Quantises as the output does.
template <typename Sample>
std::uint64_t clippedAfter(std::vector<Sample> samples, double factor, int bits,
                           std::vector<std::int32_t> &integers) {
    for (Sample &sample : samples)
        sample = static_cast<Sample>(sample * factor);
    integers.resize(samples.size());
    return quantise(samples.data(), samples.size(), bits, integers.data());
}

}  // namespace

TEST(SSampleRange, CoversAllSamples) {
    const SSampleRange range = rangeOf<double>({0.25, -0.5, 0.75, 0.0});
    EXPECT_EQ(range.lowest, -0.5);
    EXPECT_EQ(range.highest, 0.75);
}

TEST(SSampleRange, LeavesOutWhatIsNotFinite) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const SSampleRange range =
        rangeOf<float>({infinity, -infinity, std::numeric_limits<float>::quiet_NaN(), 0.5f});
    EXPECT_EQ(range.lowest, 0.0);
    EXPECT_EQ(range.highest, 0.5);
}

template <typename Sample>
class OutputGainHeadroom : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(OutputGainHeadroom, Precisions);

TYPED_TEST(OutputGainHeadroom, TheLoudestSampleIsJustNotClipped) {
    for (const int bits : {8, 16, 24, 32}) {
        for (const double peak : {0.3, 1.0, 1.7, 123.456}) {
            for (const double sign : {1.0, -1.0}) {
                const std::vector<TypeParam> samples = {static_cast<TypeParam>(sign * peak)};
                const double factor = factorToFullScale(rangeOf(samples), bits, false);
                std::vector<std::int32_t> integers;
                EXPECT_EQ(clippedAfter(samples, factor, bits, integers), 0u) << bits << " " << peak;
                const double reached = std::ldexp(sign * integers[0], -31);
                EXPECT_NEAR(reached, 1.0, std::ldexp(1.01, 1 - std::min(bits, 25)));
            }
        }
    }
}

TEST(OutputGain, IntegersOfTheFormatNeedNoHeadroom) {
    const SSampleRange range = rangeOf<float>({-1.0f, 32767.0f / 32768.0f});
    EXPECT_EQ(factorToFullScale(range, 16, false), 1.0);
}

TEST(OutputGain, DitherNeedsAStepOfHeadroom) {
    const std::vector<double> loud(10000, 1.2), low(10000, -1.2);
    for (const int bits : {8, 16}) {
        for (const auto &samples : {loud, low}) {
            const double factor = factorToFullScale(rangeOf(samples), bits, true);
            std::vector<double> turnedDown(samples.size(), samples[0] * factor);
            CDither(bits).add(turnedDown.data(), turnedDown.size(), turnedDown.data());
            std::vector<std::int32_t> integers;
            EXPECT_EQ(clippedAfter(turnedDown, 1.0, bits, integers), 0u);
        }
    }
}

TEST(OutputGain, SilenceHasAllTheHeadroom) {
    EXPECT_EQ(factorToFullScale({}, 16, true), std::numeric_limits<double>::infinity());
}

TEST(OutputGain, TheFactorReachesTheTarget) {
    std::vector<double> samples;
    for (int i = 0; i < 2 * 48000; ++i)
        samples.push_back(0.1 * std::sin(0.13 * i));
    for (const ELoudnessUnit unit : {ELoudnessUnit::Lufs, ELoudnessUnit::Dbtp}) {
        const SLoudnessTarget target{-9.0, unit};
        CLoudness before(48000, 1, partsFor(target));
        before.add(samples.data(), samples.size());
        const double factor = factorToTarget(target, before).value();

        std::vector<double> louder = samples;
        for (double &sample : louder)
            sample *= factor;
        CLoudness after(48000, 1, {.truePeak = true});
        after.add(louder.data(), louder.size());
        const SLoudness found = after.finish();
        EXPECT_NEAR(unit == ELoudnessUnit::Lufs ? *found.integrated : *found.truePeak, -9.0, 1e-6);
    }
}

TEST(OutputGain, WithoutALoudnessThereIsNoFactor) {
    std::vector<double> samples(48000, 0.0);
    for (const double sample : {0.0, std::numeric_limits<double>::quiet_NaN()}) {
        samples.back() = sample;
        for (const ELoudnessUnit unit : {ELoudnessUnit::Lufs, ELoudnessUnit::Dbtp}) {
            const SLoudnessTarget target{-9.0, unit};
            CLoudness sound(48000, 1, partsFor(target));
            sound.add(samples.data(), samples.size());
            EXPECT_FALSE(factorToTarget(target, sound));
        }
    }
}
