#include "dspclasses/blocks/FilterCoefficients.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr float invSampleRate = 1.0f / 44100.0f;
constexpr double pi = 3.141592653589793;

/// @return |1 - pole z^-1| squared.
double squaredDistance(double pole, double w) {
    return 1.0 - 2.0 * pole * std::cos(w) + pole * pole;
}

double highPassDb(double cutoff, double hz) {
    const double w = 2.0 * pi * hz / 44100.0;
    const double pole = highPassPole(static_cast<float>(cutoff), invSampleRate);
    return 10.0 * std::log10(squaredDistance(1.0, w) / squaredDistance(pole, w));
}

}  // namespace

TEST(FilterCoefficients, AHighPassIsThreeDecibelsDownAtALowCutoffAndLessAtAHighOne) {
    EXPECT_NEAR(highPassDb(1.0, 1.0), -3.01, 0.01);
    EXPECT_NEAR(highPassDb(60.0, 60.0), -2.97, 0.01);
    EXPECT_NEAR(highPassDb(125.0, 125.0), -2.93, 0.01);
    EXPECT_NEAR(highPassDb(500.0, 500.0), -2.70, 0.01);
    EXPECT_NEAR(highPassDb(2000.0, 2000.0), -1.80, 0.01);
}

TEST(FilterCoefficients, AHighPassFallsSixDecibelsAnOctave) {
    EXPECT_NEAR(highPassDb(500.0, 20.0) - highPassDb(500.0, 10.0), 6.02, 0.01);
}

TEST(FilterCoefficients, AHighPassRisesAboveUnityAtHalfTheSampleRate) {
    EXPECT_NEAR(highPassDb(60.0, 22050.0), 0.04, 0.01);
    EXPECT_NEAR(highPassDb(2000.0, 22050.0), 1.15, 0.01);
}

TEST(FilterCoefficients, TheHighPassPoleUsesTwoPiOneUnitInTheLastPlaceShort) {
    // A cutoff at which the last bit of 2 pi moves the pole.
    const float cutoff = 1500.0f;
    const auto poleWith = [=](float twoPi) {
        return static_cast<float>(std::exp(double{cutoff * -twoPi * invSampleRate}));
    };
    const float nearest = 6.2831855f, shorter = std::nextafter(nearest, 0.0f);
    ASSERT_NE(poleWith(nearest), poleWith(shorter));
    EXPECT_EQ(highPassPole(cutoff, invSampleRate), poleWith(shorter));
}

TEST(FilterCoefficients, TheBandsDoNotSplitAtTheCrossover) {
    struct SRow {
        float crossover;
        double split;  // Hz
    };
    for (const auto &[crossover, split] : {SRow{100.0f, 11023.6},
                                           {350.0f, 11007.6},
                                           {1500.0f, 10705.5},
                                           {1600.0f, 10661.7},
                                           {6400.0f, 4796.7}}) {
        const double c = bandSplitCoefficient(crossover, invSampleRate);
        const auto decibelsAt = [c](double hz) {
            return 10.0 * std::log10(c * c / squaredDistance(1.0 - c, 2.0 * pi * hz / 44100.0));
        };
        EXPECT_NEAR(decibelsAt(0.0), 0.0, 1e-9) << crossover;
        EXPECT_NEAR(decibelsAt(split), 10.0 * std::log10(0.5), 1e-4) << crossover;
    }
}

TEST(FilterCoefficients, ACrossoverAboveASixthOfTheSampleRateReturnsNaN) {
    EXPECT_TRUE(std::isnan(bandSplitCoefficient(7400.0f, invSampleRate)));
    EXPECT_FALSE(std::isnan(bandSplitCoefficient(7300.0f, invSampleRate)));
}
