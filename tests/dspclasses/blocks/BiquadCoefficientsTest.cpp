#include "dspclasses/blocks/BiquadCoefficients.h"

#include <cmath>
#include <complex>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double nyquist = 22050.0;

double decibelsAt(const SBiquadCoefficients &c, double hz) {
    const std::complex<double> z1 = std::polar(1.0, -3.141592653589793 * hz / nyquist);
    const std::complex<double> z2 = z1 * z1;
    const auto h = (c.b0 + c.b1 * z1 + c.b2 * z2) / (1.0 + c.a1 * z1 + c.a2 * z2);
    return 20.0 * std::log10(std::abs(h));
}

SBiquadCoefficients withOctaves(EBiquadKind kind, double gainDb, double octaves) {
    return biquadCoefficients({kind, 1000.0, gainDb, octaves, true, 1.0 / 44100.0});
}
SBiquadCoefficients withQ(EBiquadKind kind, double q) {
    return biquadCoefficients({kind, 1000.0, 0.0, q, false, 1.0 / 44100.0});
}

constexpr double silent = -100.0;  // dB and below

void expectDecibels(const SBiquadCoefficients &c, double hz, double expected) {
    if (expected == silent)
        EXPECT_LT(decibelsAt(c, hz), silent) << hz << " Hz";
    else
        EXPECT_NEAR(decibelsAt(c, hz), expected, 0.001) << hz << " Hz";
}

}  // namespace

TEST(BiquadCoefficients, HaveTheGainOfTheirKindAtTheirFrequencyAndAtBothEnds) {
    struct SRow {
        EBiquadKind kind;
        double atZero, atFrequency, atNyquist;  // dB
    };
    const double q = std::sqrt(2.0), qDb = 20.0 * std::log10(q);
    for (const auto &row : {SRow{EBiquadKind::LowPass, 0.0, qDb, silent},
                            {EBiquadKind::HighPass, silent, qDb, 0.0},
                            {EBiquadKind::BandPassSkirt, silent, qDb, silent},
                            {EBiquadKind::BandPassPeak, silent, 0.0, silent},
                            {EBiquadKind::Notch, 0.0, silent, 0.0},
                            {EBiquadKind::AllPass, 0.0, 0.0, 0.0}}) {
        const SBiquadCoefficients c = withQ(row.kind, q);
        SCOPED_TRACE(static_cast<int>(row.kind));
        expectDecibels(c, 0.0, row.atZero);
        expectDecibels(c, 1000.0, row.atFrequency);
        expectDecibels(c, nyquist, row.atNyquist);
    }
    for (const double gainDb : {-12.0, 6.0, 12.0}) {
        for (const auto &row : {SRow{EBiquadKind::Peaking, 0.0, gainDb, 0.0},
                                {EBiquadKind::LowShelf, gainDb, gainDb / 2.0, 0.0},
                                {EBiquadKind::HighShelf, 0.0, gainDb / 2.0, gainDb}}) {
            const SBiquadCoefficients c = withOctaves(row.kind, gainDb, 1.0);
            SCOPED_TRACE(static_cast<int>(row.kind));
            expectDecibels(c, 0.0, row.atZero);
            expectDecibels(c, 1000.0, row.atFrequency);
            expectDecibels(c, nyquist, row.atNyquist);
        }
    }
}

TEST(BiquadCoefficients, APeakHasHalfItsGainAtBothEndsOfItsBandwidth) {
    for (const double octaves : {0.125, 0.5, 1.0}) {
        for (const double gainDb : {-12.0, 12.0}) {
            const auto c = withOctaves(EBiquadKind::Peaking, gainDb, octaves);
            const double half = std::exp2(octaves / 2.0);
            EXPECT_NEAR(decibelsAt(c, 1000.0 * half), gainDb / 2.0, 0.03) << octaves;
            EXPECT_NEAR(decibelsAt(c, 1000.0 / half), gainDb / 2.0, 0.03) << octaves;
        }
    }
}

TEST(BiquadCoefficients, ABandPassAndANotchAreThreeDecibelsDownAtBothEndsOfTheirBandwidth) {
    const double half = std::sqrt(2.0), halfPower = 10.0 * std::log10(0.5);
    for (const EBiquadKind kind : {EBiquadKind::BandPassPeak, EBiquadKind::Notch}) {
        const auto c = withOctaves(kind, 0.0, 1.0);
        EXPECT_NEAR(decibelsAt(c, 1000.0 * half), halfPower, 0.03);
        EXPECT_NEAR(decibelsAt(c, 1000.0 / half), halfPower, 0.03);
    }
}

TEST(BiquadCoefficients, ABandPassOfConstantSkirtGainKeepsItsSkirtsAtAnyQ) {
    const double narrow = decibelsAt(withQ(EBiquadKind::BandPassSkirt, 8.0), 50.0);
    EXPECT_NEAR(decibelsAt(withQ(EBiquadKind::BandPassSkirt, 2.0), 50.0), narrow, 0.03);
}

TEST(BiquadCoefficients, AnAllPassShiftsThePhaseByHalfACycleAtItsFrequency) {
    const auto c = withQ(EBiquadKind::AllPass, 2.0);
    const std::complex<double> z1 = std::polar(1.0, -3.141592653589793 * 1000.0 / nyquist);
    const auto h = (c.b0 + c.b1 * z1 + c.b2 * z1 * z1) / (1.0 + c.a1 * z1 + c.a2 * z1 * z1);
    EXPECT_NEAR(h.real(), -1.0, 1e-9);
    EXPECT_NEAR(h.imag(), 0.0, 1e-9);
}

TEST(BiquadCoefficients, AHighPassFallsTwelveDecibelsAnOctave) {
    const auto c = withQ(EBiquadKind::HighPass, std::sqrt(0.5));
    EXPECT_NEAR(decibelsAt(c, 1000.0), 10.0 * std::log10(0.5), 1e-6);
    EXPECT_NEAR(decibelsAt(c, 40.0) - decibelsAt(c, 20.0), 12.04, 0.01);
}
