#include "dspclasses/modules/CDSPDeEsser.h"

#include "dspclasses/modules/CDSPRBJFilter.h"
#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainDeEsser.h"
#include "dspclasses/support/Oracle.h"

#include <cmath>
#include <limits>
#include <memory>

namespace {

using enum CDSPDeEsser::EParameter;

constexpr float K = 0.115129255f;

const std::vector<SParameterRange> laws{{kThreshold, -60.0f, 0.0f}, {kSpeed, 0.0f, 1.0f},
                                        {kRatio, 1.0f, 7.0f},       {kFrequency, 2000.0f, 8000.0f},
                                        {kBand, 0.0f, 1.0f},        {kListen, 0.0f, 1.0f}};

std::unique_ptr<CDSPDeEsser> makeDeEsser() {
    return std::make_unique<CDSPDeEsser>();
}

/// Ratio 2 above -20 dB, from 4 kHz up, at the fastest speed.
std::unique_ptr<CDSPDeEsser> makeWide() {
    auto deEsser = makeDeEsser();
    deEsser->setParameter(kThreshold, -21.0f);
    deEsser->setParameter(kThreshold, -20.0f);
    deEsser->setParameter(kSpeed, 0.0f);
    deEsser->setParameter(kRatio, 2.0f);
    deEsser->setParameter(kFrequency, 4000.0f);
    return deEsser;
}

std::unique_ptr<CDSPDeEsser> makeNarrow() {
    auto deEsser = makeWide();
    deEsser->setParameter(kBand, 1.0f);
    return deEsser;
}

template <typename Sample>
std::vector<Sample> sine(double hertz, double level, int frames) {
    std::vector<Sample> samples;
    samples.reserve(static_cast<std::size_t>(frames));
    for (int i = 0; i < frames; ++i)
        samples.push_back(
            static_cast<Sample>(level * std::sin(6.283185307179586 * hertz * i / 44100.0)));
    return samples;
}

/// A tone that the side chain's filter passes.
template <typename Sample>
TStereo<Sample> sibilant(int frames, double left, double right) {
    TStereo<Sample> stereo;
    stereo.channels = {sine<Sample>(9000.0, left, frames), sine<Sample>(9000.0, right, frames)};
    return stereo;
}
/// A tone that the filter stops.
template <typename Sample>
TStereo<Sample> vowel(int frames, double level) {
    TStereo<Sample> stereo;
    stereo.channels = {sine<Sample>(200.0, level, frames), sine<Sample>(200.0, level, frames)};
    return stereo;
}

/// The gain over `count` frames from `first`: the square root of the ratio of the energies.
template <typename Sample>
double gainOver(const std::vector<Sample> &output, const std::vector<Sample> &input, int first,
                int count) {
    double out = 0.0, in = 0.0;
    for (int i = first; i < first + count; ++i) {
        const auto index = static_cast<std::size_t>(i);
        out += static_cast<double>(output[index]) * static_cast<double>(output[index]);
        in += static_cast<double>(input[index]) * static_cast<double>(input[index]);
    }
    return std::sqrt(out / in);
}

/// The gain of one channel over the last 10 ms of a signal.
template <typename Sample>
double lastGain(CDSPDeEsser &deEsser, const TStereo<Sample> &input, std::size_t channel = 0) {
    const TStereo<Sample> output = render(deEsser, input, 500);
    return gainOver(output.channels[channel], input.channels[channel], input.frames() - 441, 441);
}

constexpr int settled = 30000;

/// The gain of ratio 2 above -20 dB, nearly the same for every level above the threshold.
const double reduced = std::exp(-0.5 * 19.9 * K);

}  // namespace

TEST(CDSPDeEsser, StartsWithItsConstructionValues) {
    CDSPDeEsser deEsser;
    EXPECT_EQ(deEsser.getParameter(kThreshold), -20.0f);
    EXPECT_EQ(deEsser.getParameter(kSpeed), 0.5f);
    EXPECT_EQ(deEsser.getParameter(kRatio), 1.0f);
    EXPECT_EQ(deEsser.getParameter(kFrequency), 1000.0f);
    EXPECT_EQ(deEsser.getParameter(kBand), 0.0f);
    EXPECT_EQ(deEsser.getParameter(kListen), 0.0f);
}

TEST(CDSPDeEsser, ReturnsWhatWasSetAndIgnoresAnUnknownIndex) {
    expectParametersReadAsSet(makeDeEsser, laws);
}

TEST(CDSPDeEsser, IsNarrowAndListensFromOneHalf) {
    CDSPDeEsser deEsser;
    for (const int index : {kBand, kListen}) {
        deEsser.setParameter(index, 0.5f);
        EXPECT_EQ(deEsser.getParameter(index), 1.0f);
        deEsser.setParameter(index, std::nextafter(0.5f, 0.0f));
        EXPECT_EQ(deEsser.getParameter(index), 0.0f);
    }
}

template <typename Sample>
class CDSPDeEsserPrecision : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(CDSPDeEsserPrecision, Precisions);

TYPED_TEST(CDSPDeEsserPrecision, ListeningOutputsTheHighPassedSignal) {
    const auto input = makeSignal<TypeParam>(ESignal::Mixed, 1, 3000);
    CDSPDeEsser deEsser;
    CDSPRBJFilter atStart(CDSPRBJFilter::EKind::HighPass, 1000.0f, 0.0f, 0.5f, true);
    deEsser.setParameter(kListen, 0.5f);
    EXPECT_TRUE(render(deEsser, input, 700) == render(atStart, input, 700));

    // A new frequency continues from the same history; setting it again changes nothing.
    for (const float hertz : {5000.0f, 5000.0f}) {
        deEsser.setParameter(kFrequency, hertz);
        atStart.setFrequency(hertz);
        EXPECT_TRUE(render(deEsser, input, 700) == render(atStart, input, 700));
    }
}

TEST(CDSPDeEsser, KeepsTheStateOfItsDetectorWhileListening) {
    auto deEsser = makeWide();
    ASSERT_NEAR(lastGain(*deEsser, sibilant<float>(settled, 0.5, 0.5)), reduced, 0.01);
    deEsser->setParameter(kListen, 1.0f);
    render(*deEsser, TStereo<float>(100000), 500);
    deEsser->setParameter(kListen, 0.0f);
    const auto input = vowel<float>(100, 0.001);
    EXPECT_NEAR(gainOver(render(*deEsser, input, 100).channels[0], input.channels[0], 0, 100),
                reduced, 0.01);
}

TEST(CDSPDeEsser, TreatsAnySignalAsAboveUntilTheThresholdIsFirstChanged) {
    const auto gainOfAQuietSignal = [](const std::vector<float> &thresholds) {
        CDSPDeEsser deEsser;
        deEsser.setParameter(kRatio, 2.0f);
        for (const float threshold : thresholds)
            deEsser.setParameter(kThreshold, threshold);
        return lastGain(deEsser, sibilant<float>(settled, 1e-4, 1e-4));
    };
    EXPECT_LT(gainOfAQuietSignal({}), 0.4);
    EXPECT_LT(gainOfAQuietSignal({-20.0f}), 0.4);
    EXPECT_EQ(gainOfAQuietSignal({-30.0f, -20.0f}), 1.0);
}

TEST(CDSPDeEsser, RaisesTheGainUntilTheRatioIsFirstChanged) {
    const auto gainWithRatios = [](const std::vector<float> &ratios) {
        CDSPDeEsser deEsser;
        for (const float ratio : ratios)
            deEsser.setParameter(kRatio, ratio);
        return lastGain(deEsser, sibilant<float>(settled, 0.5, 0.5));
    };
    EXPECT_NEAR(gainWithRatios({}), std::exp(19.9 * K), 0.1);
    EXPECT_NEAR(gainWithRatios({1.0f}), std::exp(19.9 * K), 0.1);
    EXPECT_EQ(gainWithRatios({2.0f, 1.0f}), 1.0);
}

TEST(CDSPDeEsser, WideAttenuatesBothChannelsAlikeForASibilantInEither) {
    for (const bool isLeft : {false, true}) {
        auto deEsser = makeWide();
        const auto input = sibilant<float>(settled, isLeft ? 0.5 : 0.02, isLeft ? 0.02 : 0.5);
        const TStereo<float> output = render(*deEsser, input, 500);
        for (const auto &[out, in] : {std::pair{output.channels[0], input.channels[0]},
                                      std::pair{output.channels[1], input.channels[1]}})
            EXPECT_NEAR(gainOver(out, in, settled - 441, 441), reduced, 0.01);
    }
}

TEST(CDSPDeEsser, WideLeavesLowFrequenciesUnchanged) {
    auto deEsser = makeWide();
    const auto input = vowel<float>(settled, 0.9);
    EXPECT_TRUE(render(*deEsser, input, 500) == input);
}

TEST(CDSPDeEsser, NarrowHearsTheRightChannelOnly) {
    const auto left = sibilant<float>(settled, 0.5, 0.0),
               right = sibilant<float>(settled, 0.0, 0.5);
    EXPECT_NEAR(lastGain(*makeNarrow(), left, 0), 1.0, 1e-6);
    EXPECT_LT(lastGain(*makeNarrow(), right, 1), 0.7);
    EXPECT_NEAR(lastGain(*makeWide(), left, 0), reduced, 0.01);
}

TEST(CDSPDeEsser, NarrowAttenuatesOnlyWhatItsFilterPasses) {
    auto narrow = makeNarrow(), wide = makeWide();
    TStereo<float> input = sibilant<float>(settled, 0.0, 0.5);
    input.channels[0] = sine<float>(200.0, 0.5, settled);
    EXPECT_NEAR(lastGain(*wide, input, 0), reduced, 0.01);
    EXPECT_NEAR(lastGain(*narrow, input, 0), 1.0, 0.01);

    // (x - s) + s * gain: all of x at a gain of 1, none of s at a gain of 0.
    CDSPRBJFilter filter(CDSPRBJFilter::EKind::HighPass, 4000.0f, 0.0f, 0.5f, true);
    auto fresh = makeNarrow();
    TStereo<float> side = render(filter, input, 500), output = render(*fresh, input, 500);
    const auto at = [](TStereo<float> &signal) { return signal.right(settled - 1); };
    const float gain = (at(output) - (at(input) - at(side))) / at(side);
    EXPECT_NEAR(gain, reduced, 0.01);
}

TEST(CDSPDeEsser, SmoothsTheExcessWithTheTimesOfItsSpeed) {
    const double arrived = 19.9, part = 1.0 - std::exp(-1.0);
    for (const auto &[speed, attackMs, releaseMs] :
         {std::array{0.0f, 2.0f, 100.0f}, std::array{1.0f, 50.0f, 500.0f}}) {
        auto deEsser = makeWide();
        deEsser->setParameter(kSpeed, speed);
        const auto excessAt = [](double gain) { return -2.0 * std::log(gain) / K; };
        // Measured around the end of the attack, which begins with the first frame.
        const auto input = sibilant<float>(settled, 0.9, 0.9);
        const TStereo<float> output = render(*deEsser, input, 500);
        const int attackEnd = static_cast<int>(attackMs * 44.1f);
        const double attacked = gainOver(output.channels[0], input.channels[0], attackEnd - 24, 49);
        EXPECT_NEAR(excessAt(attacked), arrived * part, 1.5) << speed;

        // Once the peaks have fallen, the excess decays by 1/e per release time.
        const auto after = vowel<float>(60000, 0.01);
        const TStereo<float> falling = render(*deEsser, after, 500);
        const auto excessIn = [&](int frame) {
            return excessAt(gainOver(falling.channels[0], after.channels[0], frame, 441));
        };
        EXPECT_NEAR(excessIn(10000 + static_cast<int>(releaseMs * 44.1f)) / excessIn(10000),
                    std::exp(-1.0), 0.02)
            << speed;
    }
}

TEST(CDSPDeEsser, StartsWithTheTimesOfTheMiddleSpeed) {
    auto moved = makeDeEsser(), untouched = makeDeEsser();
    moved->setParameter(kSpeed, 0.25f);
    moved->setParameter(kSpeed, 0.5f);
    const auto input = sibilant<float>(5000, 0.5, 0.5);
    const TStereo<float> a = render(*moved, input, 500), b = render(*untouched, input, 500);
    EXPECT_NEAR(gainOver(a.channels[0], b.channels[0], 2000, 3000), 1.0, 1e-4);
}

TEST(CDSPDeEsser, ResetClearsTheDetectorAndTheFilterAndKeepsTheParameters) {
    for (const auto &make : {makeWide, makeNarrow}) {
        auto deEsser = make(), fresh = make();
        render(*deEsser, sibilant<float>(settled, 0.5, 0.5), 500);
        deEsser->reset();
        EXPECT_EQ(deEsser->getParameter(kFrequency), 4000.0f);
        EXPECT_EQ(deEsser->getParameter(kRatio), 2.0f);
        const auto input = makeSignal<float>(ESignal::Bursts, 4, 3000);
        EXPECT_TRUE(render(*deEsser, input, 500) == render(*fresh, input, 500));
    }
}

TYPED_TEST(CDSPDeEsserPrecision, WritesZeroOverDenormalInput) {
    for (const float listen : {0.0f, 1.0f}) {
        CDSPDeEsser deEsser;
        deEsser.setParameter(kListen, listen);
        constexpr TypeParam denormal = std::numeric_limits<TypeParam>::denorm_min();
        auto input = steady<TypeParam>(103, -5 * denormal, -TypeParam{0});
        TStereo<TypeParam> output(103);
        renderPart(deEsser, input, output, 0, 103);
        EXPECT_TRUE(input == TStereo<TypeParam>(103, TypeParam{0}));
    }
}

// In double precision the peak is flushed while its neighbour, the last gain in dB, is 0
// (NeighbourFlush.h).

TEST(CDSPDeEsser, InDoublePrecisionPassesTheSignal) {
    const auto input = sibilant<double>(5000, 0.5, 0.5);
    EXPECT_TRUE(render(*makeWide(), input, 500) == input);
    EXPECT_NEAR(lastGain(*makeNarrow(), input), 1.0, 1e-12);
    CDSPDeEsser untouched;
    EXPECT_TRUE(render(untouched, input, 500) == input);
}

TEST(CDSPDeEsser, InDoublePrecisionKeepsAGainFromSinglePrecisionUntilItIsReleased) {
    auto deEsser = makeWide();
    render(*deEsser, sibilant<float>(settled, 0.5, 0.5), 500);
    const auto loud = sibilant<double>(settled, 0.5, 0.5);
    EXPECT_NEAR(lastGain(*deEsser, loud), reduced, 0.01);
    render(*deEsser, TStereo<double>(100000), 500);
    EXPECT_TRUE(render(*deEsser, loud, 500) == loud);
}

TEST(CDSPDeEsser, InDoublePrecisionNarrowPicksTheChannelByTheSinglePrecisionBuffer) {
    // The last single-precision block leaves a loud or a silent left channel in its side chain.
    const auto gainAfterLeft = [](double leftInSingle) {
        auto deEsser = makeNarrow();
        render(*deEsser, sibilant<float>(settled, leftInSingle, 0.5), 500);
        return lastGain(*deEsser, sibilant<double>(settled, 0.5, 0.02), 0);
    };
    EXPECT_LT(gainAfterLeft(0.5), 0.8);
    EXPECT_GT(gainAfterLeft(0.0), 0.9);
}

TEST(CDSPDeEsser, InDoublePrecisionAThresholdOfZeroFlushesTheExcessWhileAsleep) {
    CDSPDeEsser deEsser;
    CPlainDeEsser plain;
    const auto expectSame = [&](float threshold, const auto &input) {
        for (CDSPBase *each : {static_cast<CDSPBase *>(&deEsser), static_cast<CDSPBase *>(&plain)})
            each->setParameter(kThreshold, threshold);
        auto output = render(deEsser, input, 100);
        EXPECT_TRUE(output == render(plain, input, 100));
        return output;
    };
    deEsser.setParameter(kRatio, 2.0f);
    plain.setParameter(kRatio, 2.0f);
    const auto loud = sibilant<float>(settled, 0.5, 0.5);
    expectSame(-30.0f, loud);
    // Until the excess has just fallen below the limit that keeps the detector active.
    const auto quiet = vowel<float>(100, 0.01);
    while (!(expectSame(-30.0f, quiet) == quiet)) {
    }
    expectSame(0.0f, TStereo<double>(10));
    expectSame(-30.0f, loud);
}

TEST(CDSPDeEsser, KeepsTheContractOfAModule) {
    for (const auto &make : {makeWide, makeNarrow}) {
        expectBlocksOfAnyLength(make);
        expectEmptyBlocksDoNothing(make);
        expectInstancesApart(make);
        expectSilenceAfterABurst<float>(make, 20000);
        expectSilenceAfterABurst<double>(make, 20000);
    }
}

TEST(CDSPDeEsser, EqualsThePlainVersionBitForBit) {
    expectSameBits(
        makeDeEsser, [] { return std::make_unique<CPlainDeEsser>(); }, laws);
}

TEST(CDSPDeEsser, EqualsThePlainVersionWithParametersThatNoKnobGives) {
    expectSameBits(makeDeEsser, [] { return std::make_unique<CPlainDeEsser>(); },
                   {{kThreshold, -200.0f, 30.0f},
                    {kSpeed, -1.0f, 3.0f},
                    {kRatio, -1.0f, 1.0f},
                    {kFrequency, 20.0f, 22000.0f},
                    {kBand, 0.0f, 1.0f},
                    {kListen, 0.0f, 0.6f}});
}
