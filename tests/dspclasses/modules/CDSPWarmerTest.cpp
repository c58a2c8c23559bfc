#include "dspclasses/modules/CDSPWarmer.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainWarmer.h"
#include "dspclasses/support/Oracle.h"

#include <cmath>
#include <memory>

using enum CDSPWarmer::EParameter;

namespace {

std::unique_ptr<CDSPWarmer> makeWarm() {
    auto warmer = std::make_unique<CDSPWarmer>();
    warmer->setParameter(kWarmth, 0.7f);
    return warmer;
}

template <typename Sample>
Sample bend(CDSPWarmer &warmer, Sample sample) {
    TStereo<Sample> input(1, sample);
    TStereo<Sample> output = render(warmer, input, 1);
    EXPECT_TRUE(sameBits(output.left(0), output.right(0)));
    return output.left(0);
}

}  // namespace

TEST(CDSPWarmer, IsTheIdentityAtFirst) {
    CDSPWarmer warmer;
    EXPECT_EQ(warmer.getParameter(kWarmth), 0.0f);
    const auto input = makeSignal<float>(ESignal::Noise, 1, 500);
    const auto output = render(warmer, input, 500);
    for (std::size_t channel = 0; channel < 2; ++channel)
        for (std::size_t i = 0; i < 500; ++i)
            EXPECT_NEAR(output.channels[channel][i], input.channels[channel][i], 2e-7);
}

TEST(CDSPWarmer, BendsTheHalfWavesDifferentlyAtFullWarmth) {
    CDSPWarmer warmer;
    warmer.setParameter(kWarmth, 1.0f);
    EXPECT_EQ(bend(warmer, 0.0f), 0.0f);
    EXPECT_EQ(bend(warmer, 1.0f), 1.0f);
    EXPECT_NEAR(bend(warmer, 0.5f), 0.7f, 1e-6f);
    EXPECT_NEAR(bend(warmer, -0.5f), -3.5f, 1e-5f);
    EXPECT_NEAR(bend(warmer, 0.5), 0.7, 1e-6);
    EXPECT_NEAR(bend(warmer, -0.5), -3.5, 1e-5);
}

TEST(CDSPWarmer, NothingGuardsThePole) {
    CDSPWarmer warmer;
    warmer.setParameter(kWarmth, 1.0f);
    EXPECT_GT(std::abs(bend(warmer, -0.75)), 1e5);
    // A bias of 2/3 gives a curve of -0.5, whose pole is exactly at -1.
    warmer.setParameter(kWarmth, 5.0f / 6.0f);
    EXPECT_TRUE(std::isinf(bend(warmer, -1.0f)));
}

TEST(CDSPWarmer, DoublePrecisionBendsInDoublePrecision) {
    auto warmer = makeWarm();
    const float bias = 0.7f * 0.2f + 0.5f;
    const double k = 1.0f - 1.0f / bias;
    EXPECT_EQ(bend(*warmer, 0.3), 0.3 / ((0.3 - 1.0) * k + 0.3));
}

TEST(CDSPWarmer, IgnoresTheIndex) {
    CDSPWarmer warmer;
    warmer.setParameter(7, 0.25f);
    EXPECT_EQ(warmer.getParameter(3), 0.25f);
}

TEST(CDSPWarmer, IgnoresMinusZeroAfterZero) {
    CDSPWarmer warmer;
    warmer.setParameter(kWarmth, -0.0f);
    EXPECT_FALSE(std::signbit(warmer.getParameter(kWarmth)));
}

TEST(CDSPWarmer, HasNothingToReset) {
    auto warmer = makeWarm();
    const float before = bend(*warmer, 0.5f);
    warmer->reset();
    EXPECT_EQ(warmer->getParameter(kWarmth), 0.7f);
    EXPECT_EQ(bend(*warmer, 0.5f), before);
}

TEST(CDSPWarmer, AcceptsBlocksOfAnyLength) {
    expectBlocksOfAnyLength(makeWarm);
    expectEmptyBlocksDoNothing(makeWarm);
}

TEST(CDSPWarmer, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPWarmer>(); },
                   [] { return std::make_unique<CPlainWarmer>(); }, {{kWarmth, 0.0f, 1.0f}});
}
