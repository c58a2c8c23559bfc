#include "dspclasses/modules/CDSP3EQ.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/Plain3EQ.h"
#include "dspclasses/support/Oracle.h"
#include "dspclasses/support/Response.h"

#include <cmath>
#include <memory>

namespace {

using enum CDSP3EQ::EParameter;

const TStereo<double> burst = makeSignal<double>(ESignal::Noise, 1, 50);
const TStereo<double> noise = makeSignal<double>(ESignal::Noise, 2, 50);

std::unique_ptr<CDSP3EQ> makeCurved() {
    auto equaliser = std::make_unique<CDSP3EQ>();
    equaliser->setParameter(kLowGain, 6.0f);
    equaliser->setParameter(kMidGain, -9.0f);
    equaliser->setParameter(kHighGain, 3.0f);
    return equaliser;
}

/// Silences the other two bands.
void leaveOnly(CDSP3EQ &equaliser, int band) {
    for (const int other : {kLowGain, kMidGain, kHighGain})
        equaliser.setParameter(other, other == band ? 0.0f : -1e6f);
}

/// @return the first sample of a band's impulse response: for the low band the coefficient of the
///         lower low-pass, for the high band 1 minus that of the upper one.
double firstOfBand(CDSP3EQ &equaliser, int band) {
    equaliser.reset();
    leaveOnly(equaliser, band);
    TStereo<double> impulse(1);
    impulse.left(0) = 1.0;
    return render(equaliser, impulse, 1).left(0);
}

}  // namespace

TEST(CDSP3EQ, StartsFlatWithItsCrossoversAt350And1500Hertz) {
    CDSP3EQ equaliser;
    EXPECT_EQ(equaliser.getParameter(kLowGain), 0.0f);
    EXPECT_EQ(equaliser.getParameter(kMidGain), 0.0f);
    EXPECT_EQ(equaliser.getParameter(kHighGain), 0.0f);
    EXPECT_EQ(equaliser.getParameter(kLowCrossover), 350.0f);
    EXPECT_EQ(equaliser.getParameter(kHighCrossover), 1500.0f);
    EXPECT_NEAR(firstOfBand(equaliser, kLowGain), 0.7317, 1e-4);
    EXPECT_NEAR(1.0 - firstOfBand(equaliser, kHighGain), 0.7248, 1e-4);
}

TEST(CDSP3EQ, TheCoefficientsHardlyDependOnTheCrossover) {
    CDSP3EQ equaliser;
    for (const float crossover : {100.0f, 800.0f}) {
        equaliser.setParameter(kLowCrossover, crossover);
        EXPECT_NEAR(firstOfBand(equaliser, kLowGain), 0.73, 0.005) << crossover;
    }
    equaliser.setParameter(kHighCrossover, 6400.0f);
    EXPECT_NEAR(1.0 - firstOfBand(equaliser, kHighGain), 0.48, 0.005);
}

TEST(CDSP3EQ, TheLowBandReachesFarAboveItsCrossover) {
    CDSP3EQ equaliser;
    leaveOnly(equaliser, kLowGain);
    EXPECT_NEAR(decibelsAt(equaliser, 350.0), 0.0, 0.01);
    EXPECT_NEAR(decibelsAt(equaliser, 11007.6), -3.01, 0.001);
}

TEST(CDSP3EQ, TheHighBandBeginsFarAboveItsCrossover) {
    CDSP3EQ equaliser;
    leaveOnly(equaliser, kHighGain);
    EXPECT_LT(decibelsAt(equaliser, 1500.0), -18.0);
    EXPECT_GT(decibelsAt(equaliser, 11025.0), -10.0);
}

TEST(CDSP3EQ, TheMidBandIsReversedAtTheStart) {
    CDSP3EQ equaliser;
    EXPECT_LT(firstOfBand(equaliser, kMidGain), 0.0);
}

TEST(CDSP3EQ, EachGainScalesOnlyItsBand) {
    CDSP3EQ flat;
    for (const int band : {kLowGain, kMidGain, kHighGain}) {
        const double before = firstOfBand(flat, band);
        for (const float decibels : {-12.0f, 6.0f, 12.0f}) {
            flat.setParameter(band, decibels);
            EXPECT_EQ(flat.getParameter(band), decibels);
            flat.reset();
            TStereo<double> impulse(1);
            impulse.left(0) = 1.0;
            EXPECT_NEAR(render(flat, impulse, 1).left(0) / before, linearFromDb(decibels), 1e-6);
        }
    }
}

TEST(CDSP3EQ, PassesTheInputAtZeroDbWhateverTheCrossovers) {
    for (const float lower : {100.0f, 350.0f, 800.0f}) {
        for (const float upper : {1600.0f, 6400.0f}) {
            CDSP3EQ equaliser;
            equaliser.setParameter(kLowCrossover, lower);
            equaliser.setParameter(kHighCrossover, upper);
            const TStereo<double> output = render(equaliser, noise, 50);
            for (std::size_t channel = 0; channel < 2; ++channel)
                for (std::size_t i = 0; i < 50; ++i)
                    EXPECT_NEAR(output.channels[channel][i], noise.channels[channel][i], 1e-15);
        }
    }
}

TEST(CDSP3EQ, KeepsItsStateAtTheSameCrossover) {
    CDSP3EQ equaliser, untouched;
    render(equaliser, burst, 50);
    render(untouched, burst, 50);
    equaliser.setParameter(kLowGain, 6.0f);
    untouched.setParameter(kLowGain, 6.0f);
    equaliser.setSampleRate(88200.0f);  // takes effect at the next computation
    equaliser.setParameter(kLowCrossover, 350.0f);
    equaliser.setParameter(kHighCrossover, 1500.0f);
    EXPECT_TRUE(render(equaliser, noise, 50) == render(untouched, noise, 50));
}

TEST(CDSP3EQ, ANewCrossoverClearsBothFiltersOfBothChannels) {
    for (const auto &[index, value] :
         {std::pair{kLowCrossover, 500.0f}, {kHighCrossover, 4000.0f}}) {
        auto equaliser = makeCurved(), fresh = makeCurved();
        render(*equaliser, burst, 50);
        equaliser->setParameter(index, value);
        fresh->setParameter(index, value);
        EXPECT_EQ(equaliser->getParameter(index), value);
        EXPECT_TRUE(render(*equaliser, noise, 50) == render(*fresh, noise, 50)) << index;
    }
}

TEST(CDSP3EQ, AGainKeepsTheState) {
    auto equaliser = makeCurved(), fresh = makeCurved();
    render(*equaliser, burst, 50);
    equaliser->setParameter(kLowGain, 0.0f);
    fresh->setParameter(kLowGain, 0.0f);
    EXPECT_FALSE(render(*equaliser, noise, 50) == render(*fresh, noise, 50));
}

TEST(CDSP3EQ, ResetClearsTheFiltersAndKeepsTheParameters) {
    auto equaliser = makeCurved();
    const auto fresh = render(*equaliser, noise, 50);
    equaliser->reset();
    EXPECT_TRUE(render(*equaliser, noise, 50) == fresh);
    EXPECT_EQ(equaliser->getParameter(kMidGain), -9.0f);
}

TEST(CDSP3EQ, IgnoresAnUnknownIndex) {
    CDSP3EQ equaliser, untouched;
    for (const int index : {-1, 5, 100})
        equaliser.setParameter(index, 5.0f);
    EXPECT_TRUE(render(equaliser, noise, 50) == render(untouched, noise, 50));
}

TEST(CDSP3EQ, FlushesEachStateByItself) {
    CDSP3EQ equaliser;
    TStereo<double> input(1, 3e-308);  // a denormal after one low-pass, not after the other
    equaliser.setParameter(kHighCrossover, 6400.0f);
    equaliser.setParameter(kLowGain, 6.0206f);
    TStereo<double> output = render(equaliser, input, 1);
    CPlain3EQ expected;
    expected.setParameter(kHighCrossover, 6400.0f);
    expected.setParameter(kLowGain, 6.0206f);
    EXPECT_TRUE(output == render(expected, input, 1));
}

TEST(CDSP3EQ, AcceptsBlocksOfAnyLength) {
    expectBlocksOfAnyLength(makeCurved);
    expectEmptyBlocksDoNothing(makeCurved);
}

TEST(CDSP3EQ, KeepsItsStateToItself) {
    expectInstancesApart(makeCurved);
}

TEST(CDSP3EQ, FallsSilentAfterABurst) {
    expectSilenceAfterABurst<float>(makeCurved, 20000);
    expectSilenceAfterABurst<double>(makeCurved, 20000);
}

TEST(CDSP3EQ, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSP3EQ>(); },
                   [] { return std::make_unique<CPlain3EQ>(); },
                   {{kLowGain, -12.0f, 12.0f},
                    {kMidGain, -12.0f, 12.0f},
                    {kHighGain, -12.0f, 12.0f},
                    {kLowCrossover, 100.0f, 800.0f},
                    {kHighCrossover, 1600.0f, 6400.0f}});
}
