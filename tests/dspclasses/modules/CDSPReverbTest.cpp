#include "dspclasses/modules/CDSPReverb.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainReverb.h"
#include "dspclasses/support/Oracle.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

using enum CDSPReverb::EParameter;

std::unique_ptr<CDSPReverb> makeReverb() {
    auto reverb = std::make_unique<CDSPReverb>();
    reverb->setParameter(kDryLevel, 0.5f);
    reverb->setParameter(kSpread, 0.6f);
    return reverb;
}

/// The smallest room, so that a short signal already passes through the network.
std::unique_ptr<CDSPReverb> makeSmall() {
    auto reverb = makeReverb();
    reverb->setParameter(kRoomSize, 1.0f);
    reverb->setParameter(kSpread, 0.3f);
    reverb->setParameter(kTime, 0.2f);
    return reverb;
}

std::unique_ptr<CDSPReverb> makeWet(float early, float tail) {
    auto reverb = std::make_unique<CDSPReverb>();
    reverb->setParameter(kDryLevel, 0.0f);
    reverb->setParameter(kEarlyLevel, early);
    reverb->setParameter(kTailLevel, tail);
    return reverb;
}

TStereo<float> impulseResponse(CDSPReverb &reverb, int frames, float left = 1.0f,
                               float right = 1.0f) {
    TStereo<float> input(frames);
    input.left(0) = left;
    input.right(0) = right;
    return render(reverb, input, 512);
}

int firstSound(const std::vector<float> &samples) {
    return static_cast<int>(
        std::find_if(samples.begin(), samples.end(), [](float sample) { return sample != 0.0f; }) -
        samples.begin());
}

/// A module or its plain version, run until the lines of the network are about to wrap.
template <typename Reverb>
std::unique_ptr<Reverb> makeNearTheWrap() {
    auto reverb = std::make_unique<Reverb>();
    render(*reverb, makeSignal<float>(ESignal::Loud, 3, 65536 - 300), 4096);
    return reverb;
}

const std::vector<SParameterRange> inUse{{kRoomSize, 1.0f, 400.0f},   {kTime, 0.2f, 8.0f},
                                         {kInputDamping, 0.0f, 1.0f}, {kWallDamping, 0.0f, 1.0f},
                                         {kSpread, 0.0f, 1.0f},       {kDryLevel, 0.0f, 1.0f},
                                         {kEarlyLevel, 0.0f, 1.0f},   {kTailLevel, 0.0f, 1.0f}};

}  // namespace

TEST(CDSPReverb, StartsWithItsConstructionValues) {
    CDSPReverb reverb;
    EXPECT_EQ(reverb.getParameter(kRoomSize), 100.0f);
    EXPECT_EQ(reverb.getParameter(kTime), 2.0f);
    EXPECT_EQ(reverb.getParameter(kInputDamping), 0.75f);
    EXPECT_EQ(reverb.getParameter(kWallDamping), 0.4f);
    EXPECT_EQ(reverb.getParameter(kSpread), 0.3f);
    EXPECT_EQ(reverb.getParameter(kDryLevel), -1.0f);
    EXPECT_EQ(reverb.getParameter(kEarlyLevel), 0.7f);
    EXPECT_EQ(reverb.getParameter(kTailLevel), 0.6f);
}

TEST(CDSPReverb, InvertsTheDrySignalUntilItsLevelIsSet) {
    CDSPReverb reverb;
    TStereo<float> output = impulseResponse(reverb, 1, 0.25f, -0.5f);
    EXPECT_EQ(output.left(0), -0.25f);
    EXPECT_EQ(output.right(0), 0.5f);
}

TEST(CDSPReverb, IgnoresAnUnknownIndex) {
    CDSPReverb changed, usual;
    changed.setParameter(8, 0.25f);
    changed.setParameter(-1, 0.25f);
    EXPECT_EQ(changed.getParameter(8), 0.0f);
    EXPECT_TRUE(impulseResponse(changed, 9000) == impulseResponse(usual, 9000));
}

TEST(CDSPReverb, RaisesTheRoomSizeToTheSmallestOne) {
    for (const float metres : {0.5f, 1.0f, 0.0f, -3.0f}) {
        CDSPReverb reverb;
        reverb.setParameter(kRoomSize, metres);
        EXPECT_EQ(reverb.getParameter(kRoomSize), 1.0f);
    }
}

TEST(CDSPReverb, TheShortestLineReturnsFirst) {
    // Tap 3 has offset 5, which the early line of four samples reads at 1. A read comes before the
    // write, in the early line and in the network.
    auto reverb = makeWet(0.0f, 1.0f);
    EXPECT_EQ(firstSound(impulseResponse(*reverb, 10000).channels[0]), 2 + 8199 + 1);
}

TEST(CDSPReverb, TheEarlyTapsFallWithinFourSamples) {
    // Offsets 5320, 3894, 2014 and 5 are 0, 2, 2 and 1 modulo 4.
    auto reverb = makeWet(1.0f, 0.0f);
    reverb->setParameter(kInputDamping, 1.0f);  // no filter
    const TStereo<float> output = impulseResponse(*reverb, 12);
    const float sum = 0.75f;                      // of the diffused channels, halved
    const float chain = 0.75f * 0.625f * 0.625f;  // the undelayed path through the all-passes
    const double decay = std::pow(0.001, 1.0 / (2.0 * 44100.0));
    const auto gain = [&](double offset) { return std::pow(decay, offset); };
    const std::vector<float> &left = output.channels[0];
    EXPECT_EQ(left[0], 0.0f);
    EXPECT_NEAR(left[1], sum * chain * gain(5320), 1e-5);
    EXPECT_NEAR(left[2], -sum * chain * gain(5), 1e-5);
    EXPECT_NEAR(left[3], sum * chain * (gain(2014) - gain(3894)), 1e-5);
    for (std::size_t i = 4; i < 12; ++i)
        EXPECT_EQ(left[i], 0.0f) << i;
}

TEST(CDSPReverb, OneInputFilterProcessesLeftAndRightInTurn) {
    // The filter still contains a left impulse when it filters the right sample of the same frame.
    const auto early = [](float left, float right) {
        auto reverb = makeWet(1.0f, 0.0f);
        return double{impulseResponse(*reverb, 2, left, right).left(1)};
    };
    const double pole = 0.25;
    EXPECT_NEAR(early(1.0f, 0.0f) / early(0.0f, 1.0f), 1.0 + pole, 1e-5);
}

TEST(CDSPReverb, ANewReverbTimeDoesNotChangeTheTaps) {
    auto usual = makeWet(1.0f, 0.0f), longer = makeWet(1.0f, 0.0f);
    longer->setParameter(kTime, 7.0f);
    EXPECT_TRUE(impulseResponse(*longer, 3000) == impulseResponse(*usual, 3000));
    // A new room applies the present reverb time to the gains of the taps and the lines.
    usual->setParameter(kRoomSize, 50.0f);
    longer->setParameter(kRoomSize, 50.0f);
    EXPECT_FALSE(impulseResponse(*longer, 3000) == impulseResponse(*usual, 3000));
}

TEST(CDSPReverb, TheReverbTimeSetsTheDecayOfTheNetwork) {
    const auto returning = [](float seconds) {
        auto reverb = makeWet(0.0f, 1.0f);
        reverb->setParameter(kTime, seconds);
        return double{impulseResponse(*reverb, 8203).left(8202)};
    };
    EXPECT_NEAR(returning(4.0f) / returning(2.0f), std::pow(10.0, 3.0 * 8199 / 44100 / 4), 1e-3);
}

TEST(CDSPReverb, DampingSetsTheFilters) {
    const auto bright = [](int index, float value) {
        auto reverb = makeWet(0.0f, 1.0f);
        reverb->setParameter(index, value);
        return double{impulseResponse(*reverb, 8203).left(8202)};
    };
    EXPECT_NEAR(bright(kWallDamping, 0.8f) / bright(kWallDamping, 0.4f), 0.2 / 0.6, 1e-5);
    // The left sample yields g; the right one g + p g, since the filter still has the state of the
    // left.
    EXPECT_NEAR(bright(kInputDamping, 0.5f) / bright(kInputDamping, 1.0f), 0.5 * 2.5 / 2.0, 1e-5);
}

TEST(CDSPReverb, ALaterRoomKeepsTheLengthsOfTheAllPasses) {
    const auto firstEcho = [](float metres, bool spreadAgain) {
        auto reverb = makeWet(1.0f, 0.0f);
        reverb->setParameter(kInputDamping, 1.0f);  // no filter
        if (metres != 100.0f)
            reverb->setParameter(kRoomSize, metres);
        if (spreadAgain) {
            reverb->setParameter(kSpread, 0.5f);
            reverb->setParameter(kSpread, 0.3f);
        }
        const std::vector<float> left = impulseResponse(*reverb, 4000).channels[0];
        const int firstTap = firstSound(left), taps = 4;
        return firstSound({left.begin() + taps, left.end()}) + taps - firstTap;
    };
    // The second all-pass of the left side: 160 samples times the scale of the room.
    EXPECT_EQ(firstEcho(100.0f, false), 978);
    EXPECT_EQ(firstEcho(50.0f, false), 978);
    EXPECT_EQ(firstEcho(50.0f, true), 489);
}

TEST(CDSPReverb, AChangeOfSpreadSilencesTheAllPasses) {
    auto reverb = makeWet(1.0f, 0.0f);
    render(*reverb, makeSignal<float>(ESignal::Noise, 1, 3000), 512);
    reverb->setParameter(kSpread, 0.35f);
    // The rest of the early line passes the cleared all-passes within their first samples.
    const TStereo<float> output = render(*reverb, TStereo<float>(200), 200);
    EXPECT_NE(output.channels[0][0], 0.0f);
    EXPECT_TRUE(std::all_of(output.channels[0].begin() + 100, output.channels[0].end(),
                            [](float sample) { return std::abs(sample) < 1e-20f; }));
}

TEST(CDSPReverb, WithoutSpreadBothSidesAreEqual) {
    auto reverb = makeWet(0.7f, 0.6f);
    reverb->setParameter(kSpread, 0.0f);
    const TStereo<float> output = impulseResponse(*reverb, 20000, 1.0f, 0.3f);
    EXPECT_EQ(output.channels[0], output.channels[1]);
}

TEST(CDSPReverb, KeepsRunningWithBothLevelsAtZero) {
    auto reverb = makeWet(0.0f, 0.0f);
    reverb->setParameter(kDryLevel, 1.0f);
    const auto input = makeSignal<float>(ESignal::Noise, 2, 20000);
    EXPECT_TRUE(render(*reverb, input, 512) == input);
    reverb->setParameter(kTailLevel, 1.0f);
    EXPECT_NE(render(*reverb, TStereo<float>(10), 10).left(0), 0.0f);
}

TEST(CDSPReverb, ATailDecaysToExactZero) {
    expectSilenceAfterABurst<float>(makeSmall, 200000);
    expectSilenceAfterABurst<double>(makeSmall, 200000);
}

TEST(CDSPReverb, ATailHasNoDenormal) {
    auto reverb = makeSmall();
    reverb->setParameter(kDryLevel, 0.0f);
    reverb->setParameter(kEarlyLevel, 1.0f);
    reverb->setParameter(kTailLevel, 1.0f);
    TStereo<float> input(200000);
    input.left(0) = 1.0f;
    const TStereo<float> output = render(*reverb, input, 512);
    EXPECT_EQ(output.channels[0].back(), 0.0f);
    const auto denormal = [](float sample) { return std::fpclassify(sample) == FP_SUBNORMAL; };
    // The output sum of an all-pass is not flushed, so a tail may end with a few denormals.
    EXPECT_LT(std::count_if(output.channels[0].begin(), output.channels[0].end(), denormal), 400);
}

TEST(CDSPReverb, InDoublePrecisionTheDrySignalStaysDouble) {
    auto reverb = makeWet(0.0f, 0.0f);
    reverb->setParameter(kDryLevel, 0.7f);
    const auto input = makeSignal<double>(ESignal::Noise, 2, 500);
    const TStereo<double> output = render(*reverb, input, 512);
    for (std::size_t i = 0; i < 500; ++i)
        ASSERT_EQ(output.channels[0][i], input.channels[0][i] * double{0.7f});
}

TEST(CDSPReverb, ResetSilencesEverythingAndKeepsTheParameters) {
    auto reverb = makeReverb();
    auto fresh = makeReverb();
    render(*reverb, makeSignal<float>(ESignal::Noise, 3, 70000), 4096);
    reverb->reset();
    EXPECT_EQ(reverb->getParameter(kSpread), 0.6f);
    EXPECT_EQ(reverb->getParameter(kDryLevel), 0.5f);
    const auto input = makeSignal<float>(ESignal::Noise, 4, 70000);
    EXPECT_TRUE(render(*reverb, input, 4096) == render(*fresh, input, 4096));
}

TEST(CDSPReverb, KeepsTheContractOfAModule) {
    for (const auto &make : {makeReverb, makeSmall}) {
        expectBlocksOfAnyLength(make);
        expectEmptyBlocksDoNothing(make);
        expectInstancesApart(make);
    }
}

TEST(CDSPReverb, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPReverb>(); },
                   [] { return std::make_unique<CPlainReverb>(); }, inUse);
}

TEST(CDSPReverb, EqualsThePlainVersionInSmallRooms) {
    std::vector<SParameterRange> small = inUse;
    small[0].high = 8.0f;
    expectSameBits([] { return std::make_unique<CDSPReverb>(); },
                   [] { return std::make_unique<CPlainReverb>(); }, small);
}

TEST(CDSPReverb, EqualsThePlainVersionFarOutsideTheParameterRanges) {
    // Lengths beyond the capacity of the lines wrap, down to a single sample.
    expectSameBits([] { return std::make_unique<CDSPReverb>(); },
                   [] { return std::make_unique<CPlainReverb>(); },
                   {{kRoomSize, 505.4f, 506.2f},
                    {kRoomSize, 0.0f, 1300.0f},
                    {kTime, 0.01f, 100.0f},
                    {kInputDamping, -0.5f, 1.5f},
                    {kWallDamping, -0.5f, 1.5f},
                    {kSpread, -1.0f, 3.0f},
                    {kTailLevel, -2.0f, 2.0f}},
                   500);
}

TEST(CDSPReverb, EqualsThePlainVersionAsTheLinesWrap) {
    expectSameBits(makeNearTheWrap<CDSPReverb>, makeNearTheWrap<CPlainReverb>, inUse, 200);
}

TEST(CDSPReverbDeathTest, StopsAtASpreadThatLeavesAnAllPassNoLength) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    CDSPReverb reverb;
    EXPECT_DEATH(reverb.setParameter(kSpread, 3.203f),
                 "Assertion failed: newDelayLength!=0, file dspclasses/DSPAllPass, line 46");
}

TEST(CDSPReverbDeathTest, StopsAtARoomSizeOfNaN) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    CDSPReverb reverb;
    reverb.setParameter(kRoomSize, NAN);
    EXPECT_DEATH(impulseResponse(reverb, 1),
                 "Assertion failed: offset >= 0.0f, file dspclasses/DelayLine, line 74");
}
