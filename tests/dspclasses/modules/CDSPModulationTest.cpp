#include "dspclasses/modules/CDSPModulation.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainModulation.h"
#include "dspclasses/support/Oracle.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>
#include <thread>
#include <vector>

namespace {

using enum CDSPModulation::EParameter;

constexpr float vibrato = 0.0f, adt = 0.5f, phaser = 1.0f;

std::unique_ptr<CDSPModulation> makeOfType(float type) {
    auto modulation = std::make_unique<CDSPModulation>();
    modulation->setParameter(kType, type);
    return modulation;
}

/// A vibrato without its dry signal: a swept delay and nothing else.
std::unique_ptr<CDSPModulation> makeSweep() {
    auto modulation = makeOfType(vibrato);
    modulation->setParameter(kMix, 1.0f);
    return modulation;
}

struct SOffsets {
    std::vector<double> left, right;
};

/// Feeds a ramp, so that each output sample of a sweep shows its offset. Valid once the ramp fills
/// the line: the first thousand frames do not count.
class CRamp {
public:
    SOffsets through(CDSPModulation &modulation, int frames) {
        TStereo<float> input(frames);
        for (int i = 0; i < frames; ++i)
            input.left(i) = input.right(i) = static_cast<float>(m_next + i);
        TStereo<float> output = render(modulation, input, 100);
        SOffsets offsets;
        for (int i = 0; i < frames; ++i) {
            offsets.left.push_back(m_next + i - 1 - double{output.left(i)});
            offsets.right.push_back(m_next + i - 1 - double{output.right(i)});
        }
        m_next += frames;
        return offsets;
    }

private:
    int m_next = 0;
};

double lowest(const std::vector<double> &values) {
    return *std::min_element(values.begin(), values.end());
}
double highest(const std::vector<double> &values) {
    return *std::max_element(values.begin(), values.end());
}

template <typename Sample>
TStereo<Sample> impulse(int frames) {
    TStereo<Sample> input(frames);
    input.left(0) = input.right(0) = Sample{1};
    return input;
}

}  // namespace

TEST(CDSPModulation, StartsWithItsConstructionValues) {
    CDSPModulation modulation;
    EXPECT_EQ(modulation.getParameter(kType), adt);
    EXPECT_EQ(modulation.getParameter(kWidth), 20.0f);
    EXPECT_EQ(modulation.getParameter(kDepth), 0.5f);
    EXPECT_EQ(modulation.getParameter(kSpeed), 1.0f);
    EXPECT_EQ(modulation.getParameter(kSpread), 0.5f);
    EXPECT_EQ(modulation.getParameter(kFeedback), 0.5f);
    EXPECT_EQ(modulation.getParameter(kMix), 0.5f);
}

TEST(CDSPModulation, StartsWithAnOscillatorOfOneHertz) {
    auto sweep = makeSweep();
    CRamp ramp;
    ramp.through(*sweep, 1000);
    const SOffsets offsets = ramp.through(*sweep, 88200);
    EXPECT_NEAR(lowest(offsets.left), 441.0, 0.01);
    EXPECT_NEAR(highest(offsets.left), 882.0, 0.01);
    for (std::size_t i = 0; i < 44100; i += 100)
        EXPECT_NEAR(offsets.left[i], offsets.left[i + 44100], 0.5) << i;
}

TEST(CDSPModulation, StartsWithTheRightOscillatorAnEighthOfACycleAhead) {
    auto sweep = makeSweep();
    CRamp ramp;
    ramp.through(*sweep, 1000);
    const SOffsets offsets = ramp.through(*sweep, 40000);
    const auto top = [](const std::vector<double> &values) {
        return std::min_element(values.begin(), values.end()) - values.begin();
    };
    EXPECT_NEAR(static_cast<double>(top(offsets.left) - top(offsets.right)), 44100.0 / 8, 100.0);
}

TEST(CDSPModulation, SelectsTheTypeByTenTimesTheValueTruncated) {
    const auto typeAt = [](float value) {
        CDSPModulation modulation;
        modulation.setParameter(kType, value);
        return modulation.getParameter(kType);
    };
    EXPECT_EQ(typeAt(0.0f), vibrato);
    EXPECT_EQ(typeAt(0.39f), vibrato);
    EXPECT_EQ(typeAt(std::nextafter(0.4f, 0.0f)), vibrato);
    EXPECT_EQ(typeAt(0.4f), adt);
    EXPECT_EQ(typeAt(0.69f), adt);
    EXPECT_EQ(typeAt(0.7f), phaser);
    EXPECT_EQ(typeAt(1.0f), phaser);
    EXPECT_EQ(typeAt(-0.05f), vibrato);
    EXPECT_EQ(typeAt(-0.1f), phaser);
    EXPECT_EQ(typeAt(NAN), phaser);
}

TEST(CDSPModulation, IgnoresAnUnknownIndex) {
    auto changed = makeSweep(), usual = makeSweep();
    changed->setParameter(7, 0.25f);
    changed->setParameter(-1, 0.25f);
    EXPECT_EQ(changed->getParameter(7), 0.0f);
    const auto input = makeSignal<float>(ESignal::Noise, 1, 2000);
    EXPECT_TRUE(render(*changed, input, 500) == render(*usual, input, 500));
}

TEST(CDSPModulation, MixesFromDryToWet) {
    auto modulation = makeOfType(vibrato);
    const auto input = makeSignal<float>(ESignal::Noise, 2, 500);
    modulation->setParameter(kMix, 0.0f);
    EXPECT_TRUE(render(*modulation, input, 500) == input);
    modulation->setParameter(kMix, 1.0f);
    modulation->reset();
    EXPECT_TRUE(render(*modulation, input, 440) == TStereo<float>(500));
}

TEST(CDSPModulation, WithoutDepthTheDelayIsTheWidth) {
    auto sweep = makeSweep();
    sweep->setParameter(kDepth, 0.0f);
    TStereo<float> output = render(*sweep, impulse<float>(1000), 64);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(output.left(i), i == 883 ? 1.0f : 0.0f) << i;
}

TEST(CDSPModulation, DepthIsTheSweptShareOfTheWidth) {
    auto sweep = makeSweep();
    sweep->setParameter(kWidth, 10.0f);
    sweep->setParameter(kDepth, 0.25f);
    sweep->setParameter(kSpeed, 2.0f);
    CRamp ramp;
    ramp.through(*sweep, 1000);
    const SOffsets offsets = ramp.through(*sweep, 22050);
    EXPECT_NEAR(highest(offsets.left), 441.0, 0.01);
    EXPECT_NEAR(lowest(offsets.left), 441.0 - 110.0, 0.01);
    EXPECT_NEAR(highest(offsets.right), 441.0, 0.01);
}

TEST(CDSPModulation, GrowsItsLinesForAWideSweep) {
    auto sweep = makeSweep();
    sweep->setParameter(kDepth, 0.0f);
    render(*sweep, makeSignal<float>(ESignal::Noise, 1, 5000), 500);
    sweep->setParameter(kWidth, 100.0f);  // 4410 samples
    TStereo<float> output = render(*sweep, impulse<float>(6000), 64);
    for (int i = 0; i < 6000; ++i)
        EXPECT_EQ(output.right(i), i == 4411 ? 1.0f : 0.0f) << i;
}

TEST(CDSPModulation, AVibratoHasNoFeedbackUntilItsTypeChanges) {
    auto without = makeOfType(vibrato), with = makeOfType(vibrato);
    with->setParameter(kFeedback, 0.9f);
    EXPECT_EQ(with->getParameter(kFeedback), 0.9f);
    const auto input = makeSignal<float>(ESignal::Noise, 3, 3000);
    EXPECT_TRUE(render(*with, input, 500) == render(*without, input, 500));
    with->setParameter(kType, adt);
    without->setParameter(kType, adt);
    EXPECT_FALSE(render(*with, input, 500) == render(*without, input, 500));
}

TEST(CDSPModulation, DoubleTrackingFeedsTheEchoBack) {
    auto modulation = makeOfType(adt);
    modulation->setParameter(kDepth, 0.0f);
    modulation->setParameter(kMix, 1.0f);
    modulation->setParameter(kFeedback, 0.25f);
    TStereo<double> output = render(*modulation, impulse<double>(3000), 64);
    EXPECT_EQ(output.left(0), 0.0);
    EXPECT_EQ(output.left(883), 1.0);
    EXPECT_EQ(output.left(2 * 883), 0.25);
    EXPECT_EQ(output.left(3 * 883), 0.0625);
}

TEST(CDSPModulation, APhaserIsAnAllPass) {
    for (const bool feedbackFirst : {false, true}) {
        CDSPModulation modulation;
        if (feedbackFirst)
            modulation.setParameter(kFeedback, 0.25f);
        modulation.setParameter(kType, phaser);
        modulation.setParameter(kFeedback, 0.25f);
        modulation.setParameter(kDepth, 0.0f);
        modulation.setParameter(kMix, 1.0f);
        TStereo<double> output = render(modulation, impulse<double>(2000), 64);
        EXPECT_EQ(output.left(0), -0.25);
        EXPECT_EQ(output.left(883), 1.0 - 0.0625);
        EXPECT_EQ(output.left(2 * 883), 0.25 * (1.0 - 0.0625));
    }
}

TEST(CDSPModulation, SpreadShiftsTheRightOscillatorFromItsPresentPhase) {
    auto sweep = makeSweep();
    CRamp ramp;
    ramp.through(*sweep, 1000);
    sweep->setParameter(kSpread, 0.0f);  // back by an eighth of a cycle: together with the left one
    const SOffsets together = ramp.through(*sweep, 44100);
    for (std::size_t i = 0; i < together.left.size(); ++i)
        ASSERT_NEAR(together.left[i], together.right[i], 0.05) << i;
    sweep->setParameter(kSpread, 1.0f);  // a quarter of a cycle ahead
    const SOffsets apart = ramp.through(*sweep, 44100);
    for (std::size_t i = 11025; i < apart.left.size(); ++i)
        ASSERT_NEAR(apart.left[i], apart.right[i - 11025], 0.5) << i;
}

TEST(CDSPModulation, SpreadWrapsAboveOneButNotBelowMinusOne) {
    auto sweep = makeSweep();
    CRamp ramp;
    // After 5512 frames the right phase, which begins at 0.75, has reached 1 and wrapped to -1.
    ramp.through(*sweep, 6000);
    sweep->setParameter(kSpread, 0.0f);
    const SOffsets below = ramp.through(*sweep, 100);
    EXPECT_NEAR(highest(below.right), 908.0, 1.0);
    EXPECT_LE(highest(below.left), 882.01);

    // Upwards from just below 1 it wraps.
    auto up = makeSweep();
    CRamp other;
    other.through(*up, 5000);
    up->setParameter(kSpread, 1.0f);
    EXPECT_LE(highest(other.through(*up, 40000).right), 882.01);
}

TEST(CDSPModulation, SettingAValueAgainChangesNothing) {
    for (int index = kType; index <= kMix; ++index) {
        auto again = makeOfType(phaser), once = makeOfType(phaser);
        for (auto *modulation : {again.get(), once.get()}) {
            modulation->setParameter(kSpread, 0.9f);
            modulation->setParameter(kSpeed, 2.0f);
        }
        again->setParameter(index, again->getParameter(index));
        const auto input = makeSignal<float>(ESignal::Noise, 4, 3000);
        EXPECT_TRUE(render(*again, input, 500) == render(*once, input, 500)) << index;
    }
}

TEST(CDSPModulation, AResetLeavesTheOscillatorsRunning) {
    auto reset = makeSweep(), usual = makeSweep();
    CRamp resetRamp, usualRamp;
    resetRamp.through(*reset, 5000);
    usualRamp.through(*usual, 5000);
    reset->reset();
    EXPECT_EQ(resetRamp.through(*reset, 100).left[0], 4999.0) << "reads zeros";
    usualRamp.through(*usual, 100);
    resetRamp.through(*reset, 1000);
    usualRamp.through(*usual, 1000);
    EXPECT_EQ(resetRamp.through(*reset, 1000).right, usualRamp.through(*usual, 1000).right);
}

TEST(CDSPModulation, ResetSilencesTheWholeLines) {
    auto sweep = makeSweep();
    sweep->setParameter(kDepth, 0.0f);
    render(*sweep, makeSignal<float>(ESignal::Noise, 5, 5000), 500);
    sweep->reset();
    sweep->setParameter(kWidth, 90.0f);  // nearly the whole line
    EXPECT_TRUE(render(*sweep, TStereo<float>(4096), 500) == TStereo<float>(4096));
}

TEST(CDSPModulation, KeepsTheContractOfAModule) {
    for (const float type : {vibrato, adt, phaser}) {
        const auto make = [type] { return makeOfType(type); };
        expectBlocksOfAnyLength(make);
        expectEmptyBlocksDoNothing(make);
        expectInstancesApart(make);
        expectSilenceAfterABurst<float>(make, 130000);
        expectSilenceAfterABurst<double>(make, 130000);
    }
}

TEST(CDSPModulation, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPModulation>(); },
                   [] { return std::make_unique<CPlainModulation>(); },
                   {{kType, 0.0f, 1.0f},
                    {kWidth, 5.0f, 40.0f},
                    {kDepth, 0.0f, 0.5f},
                    {kSpeed, 0.2f, 2.0f},
                    {kSpread, 0.0f, 1.0f},
                    {kFeedback, 0.0f, 1.0f},
                    {kMix, 0.0f, 1.0f},
                    {kSpread, 0.0f, 1.0f}});
}

TEST(CDSPModulation, EqualsThePlainVersionFarOutsideTheParameterRanges) {
    // Sweeps that come near the newest sample or wrap in the line, and oscillators that wrap every
    // few samples.
    expectSameBits([] { return std::make_unique<CDSPModulation>(); },
                   [] { return std::make_unique<CPlainModulation>(); },
                   {{kType, -0.2f, 1.0f},
                    {kWidth, 0.0f, 200.0f},
                    {kDepth, 0.0f, 1.2f},
                    {kSpeed, 0.0f, 20000.0f},
                    {kSpread, -1.0f, 2.0f},
                    {kFeedback, -1.0f, 1.0f},
                    {kMix, 0.0f, 1.0f}});
    expectSameBits([] { return std::make_unique<CDSPModulation>(); },
                   [] { return std::make_unique<CPlainModulation>(); },
                   {{kWidth, 0.0f, 3.0f}, {kDepth, 0.0f, 1.0f}, {kSpeed, 0.0f, 2000.0f}}, 500);
}

TEST(CDSPModulationDeathTest, StopsAtAnOffsetOfNaN) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    CDSPModulation modulation;
    modulation.setParameter(kSpeed, NAN);
    EXPECT_DEATH(render(modulation, TStereo<float>(10), 10),
                 "Assertion failed: offset >= 0.0f, file dspclasses/DelayLine, line 74");
}

TEST(CDSPModulation, NoChangeOfSpreadIsLostWhileABlockRuns) {
    auto sweep = makeSweep();
    constexpr int changes = 300, blockFrames = 2048;
    std::atomic<int> changed = 0, blocks = 0;
    std::thread user([&] {
        CRandom random(1);
        for (int n = 1; n <= changes; ++n) {
            sweep->setParameter(kSpread, n % 2 == 0 ? 0.1f : 0.9f);
            changed = n;
            while (blocks < n)
                std::this_thread::yield();
            // Anywhere in the next block.
            for (int looks = random.whole(0, 4000); looks > 0 && blocks == n; --looks)
                continue;
        }
    });
    // One block ahead of the changes, so that the next change happens while a block runs.
    const TStereo<float> silence(blockFrames);
    for (; blocks <= changes; ++blocks) {
        while (changed < blocks)
            std::this_thread::yield();
        render(*sweep, silence, blockFrames);
    }
    user.join();
    sweep->setParameter(kSpread, 0.0f);
    CRamp ramp;
    ramp.through(*sweep, 22050);  // a phase below -1 has returned to its range by then
    const SOffsets together = ramp.through(*sweep, 44100);
    // Rounding separates the two by a few samples; a lost change would separate them by hundreds.
    for (std::size_t i = 0; i < together.left.size(); i += 10)
        ASSERT_NEAR(together.left[i], together.right[i], 50.0) << i;
}
