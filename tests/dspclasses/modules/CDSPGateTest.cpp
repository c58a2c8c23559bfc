#include "dspclasses/modules/CDSPGate.h"

#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainGate.h"
#include "dspclasses/support/Oracle.h"

#include <cmath>
#include <memory>
#include <vector>

namespace {

using enum CDSPGate::EParameter;

constexpr float K = 0.115129255f;

const std::vector<SParameterRange> laws{
    {kThreshold, -60.0f, 0.0f}, {kAttack, 1.0f, 500.0f}, {kRelease, 50.0f, 1000.0f}};

std::unique_ptr<CDSPGate> makeGate() {
    return std::make_unique<CDSPGate>();
}
std::unique_ptr<CPlainGate> makePlain() {
    return std::make_unique<CPlainGate>();
}

float gainOf(float decibels) {
    return expSingle(decibels * K);
}

/// A gate whose threshold is at half of full scale.
std::unique_ptr<CDSPGate> makeAtHalf() {
    auto gate = std::make_unique<CDSPGate>();
    gate->setParameter(kThreshold, -6.0206f);
    return gate;
}

/// The same, fully open. Its peak follower is just below 1.
template <typename Sample>
std::unique_ptr<CDSPGate> makeOpen() {
    auto gate = makeAtHalf();
    render(*gate, steady<Sample>(6000, 1, 1), 512);
    return gate;
}

template <typename Sample>
std::vector<Sample> leftOf(CDSPGate &gate, const TStereo<Sample> &input) {
    return render(gate, input, 64).channels[0];
}

}  // namespace

TEST(CDSPGate, StartsWithItsConstructionValues) {
    CDSPGate gate;
    EXPECT_EQ(gate.getParameter(kThreshold), -20.0f);
    EXPECT_EQ(gate.getParameter(kAttack), 10.0f);
    EXPECT_EQ(gate.getParameter(kRelease), 100.0f);
    EXPECT_FALSE(gate.isOpen());
}

TEST(CDSPGate, ReturnsWhatWasSetAndIgnoresAnUnknownIndex) {
    expectParametersReadAsSet(makeGate, laws);
}

TEST(CDSPGate, LeavesSilenceSilent) {
    CDSPGate gate;
    const TStereo<float> silence(1000);
    EXPECT_TRUE(render(gate, silence, 64) == silence);
    EXPECT_FALSE(gate.isOpen());
}

TEST(CDSPGate, OpensForAnySignalUntilTheThresholdIsFirstChanged) {
    const auto opensAt = [](float level, const std::vector<float> &thresholds) {
        CDSPGate gate;
        for (const float threshold : thresholds)
            gate.setParameter(kThreshold, threshold);
        render(gate, steady(2000, level, level), 500);
        return gate.isOpen();
    };
    EXPECT_TRUE(opensAt(1e-30f, {}));
    EXPECT_TRUE(opensAt(1e-30f, {-20.0f}));
    EXPECT_FALSE(opensAt(1e-30f, {-30.0f, -20.0f}));
    EXPECT_FALSE(opensAt(0.0999f, {-30.0f, -20.0f}));
    EXPECT_TRUE(opensAt(0.1001f, {-30.0f, -20.0f}));
}

TEST(CDSPGate, ListensToTheLouderChannel) {
    for (const bool isLeft : {false, true}) {
        auto gate = makeAtHalf();
        const float loud = -0.9f, quiet = 0.1f;
        TStereo<float> output =
            render(*gate, isLeft ? steady(6000, loud, quiet) : steady(6000, quiet, loud), 512);
        EXPECT_EQ(output.left(5999), isLeft ? loud : quiet);
        EXPECT_EQ(output.right(5999), isLeft ? quiet : loud);
    }
}

TEST(CDSPGate, OpensByAConstantFactorInDecibelsAndJumpsToOneAboveMinusHalfADecibel) {
    CDSPGate gate;
    const std::vector<float> gains = leftOf(gate, steady(3000, 1.0f, 1.0f));
    float decibels = -60.0f;
    std::size_t i = 0;
    for (; i < gains.size(); ++i) {
        decibels = 0.9977324f * decibels;
        if (decibels > -0.5f)
            break;
        ASSERT_EQ(gains[i], gainOf(decibels)) << i;
    }
    EXPECT_NEAR(static_cast<double>(i), 4.8 * 441.0, 10.0);
    for (; i < gains.size(); ++i)
        ASSERT_EQ(gains[i], 1.0f) << i;
}

TEST(CDSPGate, ClosesByAConstantFactorInDecibelsOnceThePeaksHaveFallen) {
    auto gate = makeOpen<float>();
    const std::vector<float> output = leftOf(*gate, steady(40000, 0.1f, 0.1f));

    // Nothing happens while the peak follower, with its release of 15 ms, is above the threshold.
    float peak = 1.0f;
    std::size_t i = 0;
    for (; peak > 0.501f; ++i) {
        peak = (peak - 0.1f) * 0.9984883f + 0.1f;
        ASSERT_EQ(output[i], 0.1f) << i;
    }
    ASSERT_GT(i, 500u);
    while (output[i] == 0.1f)
        ++i;
    float decibels = -0.5f;
    for (; i < output.size(); ++i) {
        decibels = 1.0002267f * decibels;
        if (decibels < -60.0f)
            break;
        ASSERT_EQ(output[i], 0.1f * gainOf(decibels)) << i;
    }
    ASSERT_LT(i, output.size());
    for (; i < output.size(); ++i)
        ASSERT_EQ(output[i], 0.0f) << i;
}

TEST(CDSPGate, ReversesAtOnceFromTheGainItHasReached) {
    auto gate = makeOpen<float>();
    const std::vector<float> falling = leftOf(*gate, steady(6000, 0.1f, 0.1f));
    const float last = falling.back() / 0.1f;
    ASSERT_GT(last, 0.01f);
    ASSERT_LT(last, 0.9f);
    const std::vector<float> rising = leftOf(*gate, steady(1000, 1.0f, 1.0f));
    // The peaks need some frames to rise above the threshold; then the gain rises.
    std::size_t i = 0;
    while (i + 1 < rising.size() && rising[i + 1] < rising[i])
        ++i;
    ASSERT_GT(i, 5u);
    ASSERT_LT(i, 150u);
    const auto decibelsAt = [&](std::size_t frame) { return std::log(rising[frame]) / K; };
    EXPECT_NEAR(decibelsAt(i + 1), 0.9977324f * decibelsAt(i), 1e-4f);
    EXPECT_NEAR(decibelsAt(0), 1.0002267f * std::log(last) / K, 1e-3f);
}

TEST(CDSPGate, ComputesItsFactorsFromTheTimes) {
    auto gate = makeAtHalf();
    gate->setParameter(kAttack, 50.0f);
    gate->setParameter(kRelease, 700.0f);
    EXPECT_EQ(gate->getParameter(kAttack), 50.0f);
    EXPECT_EQ(gate->getParameter(kRelease), 700.0f);

    const std::vector<float> opening = leftOf(*gate, steady(2000, 1.0f, 1.0f));
    const auto first = std::find_if(opening.begin(), opening.end(), [](float y) { return y > 0; });
    const float attackFactor = 1.0f - 1.0f / (50.0f * 44100.0f * 0.001f);
    float decibels = -60.0f;
    for (auto gain = first; gain != opening.end(); ++gain) {
        decibels = attackFactor * decibels;
        ASSERT_EQ(*gain, gainOf(decibels));
    }

    const std::vector<float> closing = leftOf(*gate, steady(3000, 0.1f, 0.1f));
    const auto turn = std::max_element(closing.begin(), closing.end());
    decibels = std::log(*turn / 0.1f) / K;
    const float releaseFactor = 1.0f / (1.0f - 1.0f / (700.0f * 44100.0f * 0.001f));
    const float expected = decibels * std::pow(releaseFactor, 1000.0f);
    EXPECT_NEAR(std::log(*(turn + 1000) / 0.1f) / K, expected, 0.01f);
}

TEST(CDSPGate, InDoublePrecisionNeverClosesOnceItHasOpenedFully) {
    auto gate = makeOpen<double>();
    const TStereo<double> quiet = steady(40000, 0.1, -0.1);
    EXPECT_TRUE(render(*gate, quiet, 512) == quiet);
    EXPECT_FALSE(gate->isOpen());

    gate->reset();
    EXPECT_EQ(leftOf(*gate, quiet), std::vector<double>(40000, 0.0));
}

TEST(CDSPGate, InDoublePrecisionClosesAsLongAsItHasNotOpenedFully) {
    auto gate = makeAtHalf();
    render(*gate, steady(1000, 1.0, 1.0), 512);
    const std::vector<double> output = leftOf(*gate, steady(40000, 0.1, 0.1));
    EXPECT_GT(output.front(), 0.001);
    EXPECT_EQ(output.back(), 0.0);
}

TEST(CDSPGate, ResetClosesItAndKeepsTheParametersAndTheDisplay) {
    for (const float threshold : {-20.0f, -6.0206f}) {
        CDSPGate gate, fresh;
        for (CDSPGate *each : {&gate, &fresh}) {
            each->setParameter(kThreshold, threshold);
            each->setParameter(kAttack, 20.0f);
        }
        const TStereo<float> loud = steady(6000, 1.0f, 1.0f);
        const TStereo<float> first = render(gate, loud, 512);
        EXPECT_TRUE(gate.isOpen());
        gate.reset();
        EXPECT_TRUE(gate.isOpen());
        EXPECT_EQ(gate.getParameter(kThreshold), threshold);
        EXPECT_EQ(gate.getParameter(kAttack), 20.0f);
        EXPECT_TRUE(render(gate, loud, 512) == first);
        EXPECT_TRUE(render(fresh, loud, 512) == first);
    }
}

TEST(CDSPGate, AGainDrivenToZeroByANegativeAttackCountsAsClosed) {
    for (int loudFrames = 400; loudFrames < 600; loudFrames += 5) {
        CDSPGate gate;
        CPlainGate plain;
        const auto expectSame = [&](float attack, const TStereo<float> &input) {
            for (CDSPBase *each :
                 {static_cast<CDSPBase *>(&gate), static_cast<CDSPBase *>(&plain)}) {
                each->setParameter(kAttack, attack);
                each->setParameter(kThreshold, -0.2f);
            }
            EXPECT_TRUE(render(gate, input, 4096) == render(plain, input, 4096)) << loudFrames;
        };
        TStereo<float> sinking = steady(loudFrames + 100, 1.0f, 1.0f);
        for (auto &channel : sinking.channels)
            std::fill(channel.begin() + loudFrames, channel.end(), 0.0f);
        expectSame(-1.0f, sinking);
        expectSame(10.0f, steady(3000, 1.0f, 1.0f));
    }
}

TEST(CDSPGate, LeavesItsInputUnchanged) {
    CDSPGate gate;
    const auto check = [&gate](auto input) {
        const auto before = input;
        auto output = input;
        renderPart(gate, input, output, 0, input.frames());
        EXPECT_TRUE(input == before);
    };
    check(makeSignal<float>(ESignal::Denormals, 1, 100));
    check(makeSignal<double>(ESignal::Denormals, 1, 100));
}

TEST(CDSPGate, KeepsTheContractOfAModule) {
    expectBlocksOfAnyLength(makeAtHalf);
    expectEmptyBlocksDoNothing(makeAtHalf);
    expectInstancesApart(makeAtHalf);
    expectSilenceAfterABurst<float>(makeAtHalf, 100);
    expectSilenceAfterABurst<double>(makeAtHalf, 100);
}

TEST(CDSPGate, EqualsThePlainVersionBitForBit) {
    expectSameBits(makeGate, makePlain, laws);
}

TEST(CDSPGate, EqualsThePlainVersionWithParametersThatNoKnobGives) {
    expectSameBits(makeGate, makePlain,
                   {{kThreshold, -200.0f, 30.0f}, {kAttack, -0.5f, 0.5f}, {kRelease, -0.5f, 0.5f}});
    expectSameBits(makeGate, makePlain,
                   {{kThreshold, -20.0f, 0.0f}, {kAttack, -9.0f, 1.0f}, {kRelease, -9.0f, 9.0f}});
}
