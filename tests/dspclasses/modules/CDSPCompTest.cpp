#include "dspclasses/modules/CDSPComp.h"

#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainComp.h"
#include "dspclasses/support/Oracle.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

using enum CDSPComp::EParameter;

constexpr float K = 0.115129255f;

const std::vector<SParameterRange> laws{{kThreshold, -60.0f, 0.0f}, {kAttack, 1.0f, 100.0f},
                                        {kRelease, 2.0f, 200.0f},   {kRatio, 1.0f, 8.0f},
                                        {kMakeUp, -12.0f, 12.0f},   {kStereoMode, 0.0f, 1.0f}};

std::unique_ptr<CDSPComp> makeComp() {
    return std::make_unique<CDSPComp>();
}

/// Ratio 2 above -20 dB. The threshold is moved away and back, so that its linear form is set.
std::unique_ptr<CDSPComp> makeTwoToOne() {
    auto comp = makeComp();
    comp->setParameter(kThreshold, -21.0f);
    comp->setParameter(kThreshold, -20.0f);
    comp->setParameter(kRatio, 2.0f);
    return comp;
}

std::unique_ptr<CDSPComp> makeSeparate() {
    auto comp = makeTwoToOne();
    comp->setParameter(kStereoMode, 0.0f);
    return comp;
}

/// The excess over -20 dB of a steady level, once it has settled.
double settledExcess(double level) {
    return std::log(level) * K + 20.0;
}

/// The gain of ratio 2 at an excess over the threshold.
double halvedGain(double excessDb) {
    return std::exp(-0.5 * excessDb * K);
}

/// The gain at a frame of a steady level.
template <typename Sample>
double gainAt(CDSPComp &comp, Sample level, int frame) {
    return render(comp, steady(frame + 1, level, level), 64).left(frame) / level;
}

/// Long enough for every follower to settle.
constexpr int settled = 20000;

}  // namespace

TEST(CDSPComp, StartsWithItsConstructionValues) {
    CDSPComp comp;
    EXPECT_EQ(comp.getParameter(kThreshold), -20.0f);
    EXPECT_EQ(comp.getParameter(kAttack), 10.0f);
    EXPECT_EQ(comp.getParameter(kRelease), 100.0f);
    EXPECT_EQ(comp.getParameter(kRatio), 1.0f);
    EXPECT_EQ(comp.getParameter(kMakeUp), 0.0f);
    EXPECT_EQ(comp.getParameter(kStereoMode), 1.0f);
}

TEST(CDSPComp, ReturnsWhatWasSetAndIgnoresAnUnknownIndex) {
    expectParametersReadAsSet(makeComp, laws);
}

TEST(CDSPComp, IsLinkedFromOneHalf) {
    CDSPComp comp;
    comp.setParameter(kStereoMode, std::nextafter(0.5f, 0.0f));
    EXPECT_EQ(comp.getParameter(kStereoMode), 0.0f);
    comp.setParameter(kStereoMode, 0.5f);
    EXPECT_EQ(comp.getParameter(kStereoMode), 1.0f);
}

TEST(CDSPComp, AppliesOnlyTheMakeUpBelowTheThreshold) {
    for (const float mode : {0.0f, 1.0f}) {
        auto comp = makeTwoToOne();
        comp->setParameter(kStereoMode, mode);
        comp->setParameter(kMakeUp, 6.0f);
        const float factor = expSingle(6.0f * K);
        TStereo<float> output = render(*comp, steady(100, 0.0999f, -0.05f), 64);
        EXPECT_TRUE(output == steady(100, 0.0999f * factor, -0.05f * factor));
        EXPECT_TRUE(render(*comp, TStereo<float>(100), 64) == TStereo<float>(100));
    }
}

TEST(CDSPComp, ReducesAnySignalAboveTheThresholdByNearlyTheSameStep) {
    for (const float level : {0.2f, 0.5f, 1.0f}) {
        auto comp = makeTwoToOne();
        EXPECT_NEAR(gainAt(*comp, level, settled), halvedGain(settledExcess(level)), 1e-4) << level;
    }
    EXPECT_NEAR(20.0 * std::log10(halvedGain(settledExcess(0.5))), -10.0, 0.05);
}

TEST(CDSPComp, TreatsAnySignalAsAboveUntilTheThresholdIsFirstChanged) {
    const auto gainOfAQuietSignal = [](const std::vector<float> &thresholds) {
        CDSPComp comp;
        comp.setParameter(kRatio, 2.0f);
        for (const float threshold : thresholds)
            comp.setParameter(kThreshold, threshold);
        return gainAt(comp, 1e-4f, settled);
    };
    EXPECT_NEAR(gainOfAQuietSignal({}), halvedGain(settledExcess(1e-4)), 1e-4);
    EXPECT_NEAR(gainOfAQuietSignal({-20.0f}), halvedGain(settledExcess(1e-4)), 1e-4);
    EXPECT_EQ(gainOfAQuietSignal({-30.0f, -20.0f}), 1.0);
}

TEST(CDSPComp, RaisesTheGainUntilTheRatioIsFirstChanged) {
    const auto gainWithRatios = [](const std::vector<float> &ratios) {
        CDSPComp comp;
        for (const float ratio : ratios)
            comp.setParameter(kRatio, ratio);
        return gainAt(comp, 0.5f, settled);
    };
    const double raised = std::exp(settledExcess(0.5) * K);
    EXPECT_NEAR(gainWithRatios({}), raised, 1e-3);
    EXPECT_NEAR(gainWithRatios({1.0f}), raised, 1e-3);
    EXPECT_EQ(gainWithRatios({2.0f, 1.0f}), 1.0);
}

TEST(CDSPComp, SmoothsTheExcessWithTheTimesThatAreSet) {
    // After the attack time the excess has gone 1 - 1/e of its way, after the release time 1/e is
    // left.
    const double arrived = settledExcess(0.5);
    const auto excessAt = [](double gain) { return -2.0 * std::log(gain) / K; };
    const auto check = [&](CDSPComp &comp, double attackMs, double releaseMs) {
        const int attackFrames = static_cast<int>(attackMs * 44.1);
        EXPECT_NEAR(excessAt(gainAt(comp, 0.5f, attackFrames)), arrived * (1.0 - std::exp(-1.0)),
                    0.3);
        gainAt(comp, 0.5f, settled);
        // The excess stays the same until the peaks have fallen below the threshold.
        const TStereo<float> output = render(comp, steady(60000, 1e-3f, 1e-3f), 64);
        const auto &left = output.channels[0];
        const auto frameOfExcess = [&](double excessDb) {
            const auto sample = static_cast<float>(1e-3 * halvedGain(excessDb));
            return std::upper_bound(left.begin(), left.end(), sample) - left.begin();
        };
        const auto frames = frameOfExcess(10.0 / std::exp(1.0)) - frameOfExcess(10.0);
        EXPECT_NEAR(static_cast<double>(frames), releaseMs * 44.1, 2.0);
    };
    auto comp = makeTwoToOne();
    check(*comp, 10.0, 100.0);
    comp = makeTwoToOne();
    comp->setParameter(kAttack, 40.0f);
    comp->setParameter(kRelease, 20.0f);
    check(*comp, 40.0, 20.0);
}

TEST(CDSPComp, SnapsToTheMakeUpOnceTheExcessHasNearlyDecayed) {
    auto comp = makeTwoToOne();
    comp->setParameter(kRelease, 10.0f);
    gainAt(*comp, 0.5f, settled);
    const TStereo<float> output = render(*comp, steady(60000, 1e-3f, 1e-3f), 64);
    const auto &left = output.channels[0];
    const auto snap = std::find(left.begin(), left.end(), 1e-3f);
    ASSERT_NE(snap, left.end());
    ASSERT_NE(snap, left.begin());
    EXPECT_NEAR(*(snap - 1) / 1e-3, halvedGain(0.01), 1e-6);
    EXPECT_TRUE(std::all_of(snap, left.end(), [](float sample) { return sample == 1e-3f; }));
}

TEST(CDSPComp, AppliesTheMakeUpOnTopOfTheReduction) {
    auto comp = makeTwoToOne();
    comp->setParameter(kMakeUp, 12.0f);
    EXPECT_NEAR(gainAt(*comp, 0.5f, settled), halvedGain(settledExcess(0.5)) * std::exp(12.0 * K),
                1e-3);
}

TEST(CDSPComp, LinkedAppliesTheGainOfTheLouderChannelToBoth) {
    for (const bool isLeft : {false, true}) {
        auto comp = makeTwoToOne();
        TStereo<float> output =
            render(*comp, isLeft ? steady(settled, 0.5f, 0.01f) : steady(settled, 0.01f, 0.5f), 64);
        const double expected = halvedGain(settledExcess(0.5));
        EXPECT_NEAR(output.left(settled - 1) / (isLeft ? 0.5 : 0.01), expected, 1e-4);
        EXPECT_NEAR(output.right(settled - 1) / (isLeft ? 0.01 : 0.5), expected, 1e-4);
    }
}

TEST(CDSPComp, SeparateHoldsTheRightChannelAtTheLastGainOfTheLeft) {
    auto comp = makeSeparate();
    const int frames = 2000;
    render(*comp, steady(frames, 0.5f, 0.5f), frames);
    TStereo<float> output = render(*comp, steady(frames, 0.5f, 0.25f), frames);
    EXPECT_GT(output.left(0), output.left(frames - 1));
    for (int i = 0; i < frames; ++i)
        ASSERT_EQ(output.right(i), 0.5f * output.left(frames - 1)) << i;
}

TEST(CDSPComp, SeparateAppliesOnlyTheMakeUpToTheRightChannelIfTheLeftIsSilent) {
    auto comp = makeSeparate();
    comp->setParameter(kMakeUp, -3.0f);
    const float factor = expSingle(-3.0f * K);
    const TStereo<float> right = steady(5000, 0.0f, 0.5f);
    EXPECT_TRUE(render(*comp, right, 500) == steady(5000, 0.0f, 0.5f * factor));
}

TEST(CDSPComp, SeparateAppliesOnlyTheMakeUpToAQuietRightChannel) {
    auto comp = makeSeparate();
    TStereo<float> output = render(*comp, steady(5000, 0.5f, 0.05f), 500);
    EXPECT_LT(output.left(4999), 0.4f);
    EXPECT_EQ(output.channels[1], std::vector<float>(5000, 0.05f));
}

TEST(CDSPComp, SettingTheSameStereoModeAgainClearsTheState) {
    for (const float mode : {0.0f, 1.0f}) {
        auto comp = makeTwoToOne(), fresh = makeTwoToOne();
        comp->setParameter(kStereoMode, mode);
        fresh->setParameter(kStereoMode, mode);
        gainAt(*comp, 0.5f, settled);
        comp->setParameter(kStereoMode, mode);
        const auto input = makeSignal<float>(ESignal::Bursts, 3, 2000);
        EXPECT_TRUE(render(*comp, input, 200) == render(*fresh, input, 200));
    }
}

TEST(CDSPComp, OtherParametersKeepTheState) {
    auto comp = makeTwoToOne();
    gainAt(*comp, 0.5f, settled);
    comp->setParameter(kRatio, 4.0f);
    EXPECT_NEAR(gainAt(*comp, 0.5f, 0), std::exp(-0.75 * settledExcess(0.5) * K), 1e-4);
    comp->setParameter(kMakeUp, 6.0f);
    EXPECT_NEAR(gainAt(*comp, 0.5f, 0), std::exp((6.0 - 0.75 * settledExcess(0.5)) * K), 1e-3);
}

TEST(CDSPComp, ResetClearsTheStateAndKeepsTheParameters) {
    for (const float mode : {0.0f, 1.0f}) {
        auto comp = makeTwoToOne(), fresh = makeTwoToOne();
        comp->setParameter(kStereoMode, mode);
        fresh->setParameter(kStereoMode, mode);
        gainAt(*comp, 0.5f, settled);
        comp->reset();
        EXPECT_EQ(comp->getParameter(kRatio), 2.0f);
        const auto input = makeSignal<float>(ESignal::Bursts, 4, 2000);
        EXPECT_TRUE(render(*comp, input, 200) == render(*fresh, input, 200));
    }
}

TEST(CDSPComp, WritesZeroOverDenormalInputInSinglePrecisionOnly) {
    const auto inputAfter = [](CDSPComp &comp, auto input) {
        auto output = input;
        renderPart(comp, input, output, 0, input.frames());
        return input;
    };
    for (const float mode : {0.0f, 1.0f}) {
        CDSPComp comp;
        comp.setParameter(kStereoMode, mode);
        const auto floats = makeSignal<float>(ESignal::Denormals, 1, 103);
        EXPECT_TRUE(inputAfter(comp, floats) == TStereo<float>(103, 0.0f));
        const auto doubles = makeSignal<double>(ESignal::Denormals, 1, 103);
        EXPECT_TRUE(inputAfter(comp, doubles) == doubles);
    }
}

// In double precision a follower is flushed while the neighbouring field is 0 (NeighbourFlush.h).

TEST(CDSPComp, InDoublePrecisionLinkedAppliesTheMakeUpOnly) {
    auto comp = makeTwoToOne();
    comp->setParameter(kMakeUp, 3.0f);
    const double factor = expSingle(3.0f * K);
    EXPECT_TRUE(render(*comp, steady(5000, 0.5, -0.9), 500) ==
                steady(5000, 0.5 * factor, -0.9 * factor));
}

TEST(CDSPComp, InDoublePrecisionSeparatePassesTheSignalWithoutAMakeUp) {
    auto comp = makeSeparate();
    const TStereo<double> loud = steady(5000, 0.5, 0.9);
    EXPECT_TRUE(render(*comp, loud, 500) == loud);
}

TEST(CDSPComp, InDoublePrecisionSeparateCompressesOnlyWithAMakeUp) {
    auto comp = makeSeparate();
    comp->setParameter(kMakeUp, 3.0f);
    const double factor = expSingle(3.0f * K);
    const auto loud = steady(2000, 0.5, 0.9);
    // With a make-up the last gain is not 0 dB, so it no longer flushes the right peak, and from
    // the second block on the right peak no longer flushes the left one.
    TStereo<double> first = render(*comp, loud, 2000);
    EXPECT_EQ(first.left(1999), 0.5 * factor);
    TStereo<double> second = render(*comp, loud, 2000);
    EXPECT_LT(second.left(1999), 0.8 * 0.5 * factor);
    EXPECT_EQ(second.right(1999), 0.9 * (second.left(1999) / 0.5));
}

TEST(CDSPComp, InDoublePrecisionAThresholdOfZeroFlushesBothExcesses) {
    auto comp = makeSeparate();
    comp->setParameter(kThreshold, 0.0f);
    comp->setParameter(kMakeUp, 3.0f);
    const double factor = expSingle(3.0f * K);
    const auto loud = steady(8000, 4.0, 4.0);
    EXPECT_TRUE(render(*comp, loud, 2000) == steady(8000, 4.0 * factor, 4.0 * factor));
}

TEST(CDSPComp, KeepsTheContractOfAModule) {
    // Only linked: in separate mode the right channel's gain is held for a whole block.
    expectBlocksOfAnyLength(makeTwoToOne);
    expectInstancesApart(makeTwoToOne);
    for (const auto &make : {makeTwoToOne, makeSeparate}) {
        expectEmptyBlocksDoNothing(make);
        expectSilenceAfterABurst<float>(make, 100);
        expectSilenceAfterABurst<double>(make, 100);
    }
}

TEST(CDSPComp, EqualsThePlainVersionBitForBit) {
    expectSameBits(
        makeComp, [] { return std::make_unique<CPlainComp>(); }, laws);
}

TEST(CDSPComp, EqualsThePlainVersionWithParametersThatNoKnobGives) {
    expectSameBits(makeComp, [] { return std::make_unique<CPlainComp>(); },
                   {{kThreshold, -200.0f, 30.0f},
                    {kAttack, -0.5f, 5.0f},
                    {kRelease, -0.5f, 5.0f},
                    {kRatio, -1.0f, 1.0f},
                    {kMakeUp, -300.0f, 300.0f},
                    {kStereoMode, 0.0f, 1.0f}});
}
