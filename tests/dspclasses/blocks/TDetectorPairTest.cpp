#include "dspclasses/blocks/TDetectorPair.h"

#include "dspclasses/blocks/TDetector.h"
#include "dspclasses/support/Signals.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

/// What a detector leaves behind: its state, and the gain of each frame.
struct SOutcome {
    SDetectorState state;
    bool isActive;  // in the last frame
    std::vector<float> gains;
};

using Levels = std::vector<float>;

SOutcome detectAlone(const SDetectorSettings &settings, SDetectorState state,
                     const Levels &levels) {
    SOutcome outcome{state, false, Levels(levels.size())};
    outcome.isActive = TDetector<float, SNarrowLanes>::run(
        outcome.state, SFlushedFields{}, static_cast<int>(levels.size()), [&] { return settings; },
        [&](const SStep &step) { return step.load(levels.data()); }, CGainsByLaw<SNarrowLanes>(),
        [&](const SStep &step, const Floats4 &gains) {
            step.store(outcome.gains.data(), SFloats4{gains});
        });
    return outcome;
}

void expectSameState(const SDetectorState &a, const SDetectorState &b) {
    EXPECT_TRUE(sameBits(a.peak, b.peak)) << a.peak << ' ' << b.peak;
    EXPECT_TRUE(sameBits(a.smoothedExcessDb, b.smoothedExcessDb))
        << a.smoothedExcessDb << ' ' << b.smoothedExcessDb;
}

/// Runs a block through a pair and through two detectors alone, and compares.
void expectTwoAlone(const SDetectorSettings &settings, std::array<SDetectorState, 2> &states,
                    const std::array<Levels, 2> &levels) {
    const SOutcome first = detectAlone(settings, states[0], levels[0]);
    const SOutcome second = detectAlone(settings, states[1], levels[1]);
    Levels gains(levels[0].size()), areActive(levels[0].size());
    const bool isActive = TDetectorPair<SNarrowLanes>::run(
        states, static_cast<int>(levels[0].size()), [&] { return settings; },
        [&](const SStep &step) {
            return std::array{step.load(levels[0].data()), step.load(levels[1].data())};
        },
        [&](const SStep &step, const SGainLaw &law, const Floats4 &linear, const Mask4 &active) {
            EXPECT_EQ(law.offsetLinear, settings.law.offsetLinear);
            step.store(gains.data(), SFloats4{linear});
            step.store(areActive.data(), SFloats4{active ? splat(1.0f) : splat(0.0f)});
        });
    expectSameState(states[0], first.state);
    expectSameState(states[1], second.state);
    EXPECT_EQ(isActive, first.isActive);
    EXPECT_EQ(areActive.back() != 0.0f, second.isActive);
    for (std::size_t i = 0; i < gains.size(); ++i)
        EXPECT_TRUE(sameBits(gains[i], first.gains[i])) << i;
}

SDetectorSettings randomSettings(CRandom &random) {
    const auto coefficient = [&random] {
        return static_cast<float>(1.0 - 1.0 / random.real(5.0, 4000.0));
    };
    return {0.0f, 1.0f, {coefficient(), coefficient()}, {-0.5f, 0.0f, 1.0f}};
}

float randomSize(CRandom &random, double leastExponent) {
    return static_cast<float>(std::pow(10.0, random.real(leastExponent, 0.5)));
}

}  // namespace

TEST(TDetectorPair, EqualsTwoDetectorsForLevelsOfAnySize) {
    for (std::uint64_t seed = 1; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        CRandom random(seed);
        const SDetectorSettings settings = randomSettings(random);
        std::array<SDetectorState, 2> states;
        for (SDetectorState &state : states)
            state = {randomSize(random, -39.0),
                     random.chance(0.5) ? randomSize(random, -40.0) : 10.0f};
        for (int block = 0; block < 3; ++block) {
            const int frames = random.whole(1, 40);
            std::array<Levels, 2> levels;
            for (Levels &channel : levels)
                for (int i = 0; i < frames; ++i)
                    channel.push_back(random.chance(0.3) ? 0.0f : randomSize(random, -3.0));
            expectTwoAlone(settings, states, levels);
        }
        ASSERT_FALSE(HasFailure());
    }
}

TEST(TDetectorPair, EqualsTwoDetectorsWhileOneChannelBecomesNaN) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    // The channel that is above a threshold of -infinity becomes a NaN. In the same step, the other
    // falls so low that the bias changes its bits.
    const SDetectorSettings settings{-infinity, 1.0f, {0.9f, 0.1f}, {-0.5f, 0.0f, 1.0f}};
    for (const std::size_t above : {0u, 1u}) {
        std::array<SDetectorState, 2> states;
        states[above] = {2.0f, 10.0f};
        states[1 - above] = {0.0f, 0x1p-40f};
        std::array<Levels, 2> levels{Levels(4), Levels(4)};
        levels[above].assign(4, 2.0f);
        expectTwoAlone(settings, states, levels);
        EXPECT_TRUE(std::isnan(states[above].smoothedExcessDb));
    }
}

TEST(TDetectorPair, EqualsTwoDetectorsWhileOneChannelIsSilent) {
    CRandom random(7);
    const SDetectorSettings settings{0.0f, 1.0f, {0.9f, 0.95f}, {-0.5f, 0.0f, 1.0f}};
    std::array<SDetectorState, 2> states;
    for (const std::size_t silent : {0u, 1u}) {
        std::array<Levels, 2> levels{Levels(70000), Levels(70000)};
        for (float &level : levels[1 - silent])
            level = randomSize(random, -2.0);
        expectTwoAlone(settings, states, levels);
        EXPECT_EQ(states[silent].peak, 0.0f);
    }
}
