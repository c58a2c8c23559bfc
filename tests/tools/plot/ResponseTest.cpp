#include "corvel/plot/Response.h"

#include "dspclasses/blocks/FilterCoefficients.h"
#include "tools/support/CMeasuredStrip.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <gtest/gtest.h>
#include <numbers>

using namespace Tessitor::Tool;

namespace {

SResponse responseOf(const std::string &chain, const std::vector<std::string> &set = {},
                     double level = -20.0) {
    return measureResponse(CMeasuredStrip(chain, set).subject(), level);
}

// The left gain of the band that is closest to a frequency
double gainAt(const SResponse &response, double frequency) {
    std::size_t best = 0;
    for (std::size_t i = 0; i < response.frequencies.size(); ++i)
        if (std::abs(response.frequencies[i] - frequency) <
            std::abs(response.frequencies[best] - frequency))
            best = i;
    return response.gains[0][best];
}

void expectGains(const SResponse &response, std::size_t side, double gain, double tolerance) {
    for (const double found : response.gains[side])
        EXPECT_NEAR(found, gain, tolerance);
}

}  // namespace

TEST(Response, OfTheEmptyChainIsFlat) {
    const SResponse response = responseOf("none");
    EXPECT_EQ(response.frequencies.size(), 121u);
    EXPECT_DOUBLE_EQ(response.frequencies.front(), 20.0);
    EXPECT_NEAR(response.frequencies.back(), 20000.0, 1e-6);
    EXPECT_TRUE(std::is_sorted(response.frequencies.begin(), response.frequencies.end()));
    expectGains(response, 0, 0.0, 1e-4);
    expectGains(response, 1, 0.0, 1e-4);
}

TEST(Response, OfAGainIsTheGain) {
    expectGains(responseOf("Gain", {"Gain=-6dB"}), 0, -6.0, 0.02);
}

TEST(Response, OfTheHighPassIsThatOfItsPole) {
    for (const double cutoff : {150.0, 500.0, 2000.0}) {
        const SResponse response =
            responseOf("HiPass", {"HPFreq=" + std::to_string(static_cast<int>(cutoff)) + "Hz"});
        const double pole = static_cast<double>(
            highPassPole(static_cast<float>(cutoff), 1.0f / static_cast<float>(probeRate)));
        for (std::size_t i = 0; i < response.frequencies.size(); ++i) {
            const std::complex<double> delay =
                std::polar(1.0, -2.0 * std::numbers::pi * response.frequencies[i] / probeRate);
            const double expected =
                decibelsOfPower(std::norm((1.0 - delay) / (1.0 - pole * delay)));
            EXPECT_NEAR(response.gains[0][i], expected, 0.1)
                << response.frequencies[i] << " Hz, cut off at " << cutoff;
        }
    }
}

TEST(Response, OfABellHasItsPeakWhereItIsSet) {
    const SResponse response =
        responseOf("Parametric", {"ParaFreq=1000Hz", "ParaBW=1", "ParaGain=6dB"});
    EXPECT_NEAR(gainAt(response, 1000.0), 6.0, 0.1);
    EXPECT_NEAR(gainAt(response, 50.0), 0.0, 0.1);
    EXPECT_NEAR(gainAt(response, 15000.0), 0.0, 0.1);
}

TEST(Response, OfAHardPanIsSilentOnOneSide) {
    const SResponse response = responseOf("Pan", {"Pan=100:0"});
    expectGains(response, 0, 20.0 * std::log10(2.0), 0.01);
    for (const double gain : response.gains[1])
        EXPECT_EQ(gain, -HUGE_VAL);
}

TEST(Response, OfACompressorDependsOnTheLevel) {
    const std::vector<std::string> set = {"CmpThresh=-30dB", "CmpRatio=2:1"};
    expectGains(responseOf("Compressor", set, -60.0), 0, 0.0, 0.01);
    const SResponse loud = responseOf("Compressor", set, -10.0);
    expectGains(loud, 0, -15.0, 1.0);
}

TEST(Response, OfAVibratoIsItsMeanAndNotItsCancellation) {
    const SResponse response = responseOf("Modulator 1", {"Mod1Type=Vibrato", "Mod1Mix=0:100"});
    for (const double frequency : {200.0, 500.0, 1000.0, 2000.0, 4000.0})
        EXPECT_NEAR(gainAt(response, frequency), 0.0, 1.0) << frequency;
}

TEST(Response, OfADelayIsMeasuredOnceItsEchoesHaveArrived) {
    const SResponse response =
        responseOf("Delay", {"DlyTime=1500ms", "DlyFdBk=0%", "DlyDry=-oo", "DlyWet=0dB"});
    expectGains(response, 0, 0.0, 0.01);
}
