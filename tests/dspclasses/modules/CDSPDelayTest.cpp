#include "dspclasses/modules/CDSPDelay.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainDelay.h"
#include "dspclasses/support/Oracle.h"

#include <cmath>
#include <memory>
#include <vector>

namespace {

using enum CDSPDelay::EParameter;

void echoesOnly(CDSPDelay &delay) {
    delay.setParameter(kDryLevel, 0.0f);
    delay.setParameter(kWetLevel, 1.0f);
}

template <typename Sample>
TStereo<Sample> impulse(int frames, Sample left, Sample right) {
    TStereo<Sample> input(frames);
    input.left(0) = left;
    input.right(0) = right;
    return input;
}

/// @return the frame of the first echo of an impulse at frame 0, one more than the delay in
///         samples, since a line is read before it is written.
int firstEcho(CDSPDelay &delay) {
    echoesOnly(delay);
    const TStereo<float> output = render(delay, impulse(150000, 1.0f, 1.0f), 4096);
    const auto &left = output.channels[0];
    return static_cast<int>(
        std::find_if(left.begin(), left.end(), [](float sample) { return sample != 0.0f; }) -
        left.begin());
}

std::unique_ptr<CDSPDelay> makeShort() {
    auto delay = std::make_unique<CDSPDelay>();
    delay->setParameter(kTime, 2.0f);
    return delay;
}

std::unique_ptr<CDSPDelay> makeShortPingPong() {
    auto delay = makeShort();
    delay->setParameter(kPingPong, 1.0f);
    return delay;
}

/// A delay or its plain version, run until its lines are about to wrap.
template <typename Delay>
std::unique_ptr<Delay> makeNearTheWrap() {
    auto delay = std::make_unique<Delay>();
    render(*delay, makeSignal<float>(ESignal::Loud, 3, 131072 - 300), 4096);
    return delay;
}

const SParameterRange levels[] = {{kFeedback, 0.0f, 1.0f},
                                  {kPingPong, 0.0f, 1.0f},
                                  {kDryLevel, 0.0f, 1.0f},
                                  {kWetLevel, 0.0f, 1.0f}};

std::vector<SParameterRange> levelsAnd(std::vector<SParameterRange> others) {
    others.insert(others.end(), std::begin(levels), std::end(levels));
    return others;
}

}  // namespace

TEST(CDSPDelay, StartsWithItsConstructionValues) {
    CDSPDelay delay;
    EXPECT_EQ(delay.getParameter(kTime), 1000.0f);
    EXPECT_EQ(delay.getParameter(kSync), 0.0f);
    EXPECT_EQ(delay.getParameter(kFeedback), 0.5f);
    EXPECT_EQ(delay.getParameter(kPingPong), 0.0f);
    EXPECT_EQ(delay.getParameter(kDryLevel), 1.0f);
    EXPECT_EQ(delay.getParameter(kWetLevel), 0.70710677f);
    EXPECT_EQ(delay.getParameter(kTempo), 120.0f);
    EXPECT_EQ(delay.getParameter(kBeatsPerBar), 4.0f);
    EXPECT_EQ(firstEcho(delay), 44101);
}

TEST(CDSPDelay, IgnoresAnUnknownIndex) {
    CDSPDelay delay;
    delay.setParameter(8, 0.25f);
    delay.setParameter(-1, 0.25f);
    EXPECT_EQ(delay.getParameter(8), 0.0f);
    EXPECT_EQ(firstEcho(delay), 44101);
}

TEST(CDSPDelay, RoundsDownToWholeMillisecondsAndWholeSamples) {
    CDSPDelay delay;
    delay.setParameter(kTime, 100.9f);
    EXPECT_EQ(delay.getParameter(kTime), 100.0f);
    EXPECT_EQ(firstEcho(delay), 4411);
    CDSPDelay odd;
    odd.setParameter(kTime, 57.0f);  // 2513.7 samples
    EXPECT_EQ(firstEcho(odd), 2514);
}

TEST(CDSPDelay, TheSyncModeIsTwiceTheValueWithoutItsFraction) {
    const auto modeAt = [](float value) {
        CDSPDelay delay;
        delay.setParameter(kSync, value);
        return delay.getParameter(kSync);
    };
    EXPECT_EQ(modeAt(0.0f), 0.0f);
    EXPECT_EQ(modeAt(std::nextafter(0.5f, 0.0f)), 0.0f);
    EXPECT_EQ(modeAt(0.5f), 0.5f);
    EXPECT_EQ(modeAt(std::nextafter(1.0f, 0.0f)), 0.5f);
    EXPECT_EQ(modeAt(1.0f), 1.0f);
}

TEST(CDSPDelay, LastsAHalfOrAWholeBeatInSync) {
    CDSPDelay delay;
    delay.setParameter(kSync, 0.5f);
    EXPECT_EQ(delay.getParameter(kTime), 250.0f);
    delay.setParameter(kSync, 1.0f);
    EXPECT_EQ(delay.getParameter(kTime), 500.0f);
    delay.setParameter(kTempo, 133.0f);  // 451.1 ms
    EXPECT_EQ(delay.getParameter(kTime), 451.0f);
    delay.setParameter(kSync, 0.5f);
    EXPECT_EQ(delay.getParameter(kTime), 225.0f);
    delay.setParameter(kTempo, 131.0f);  // 458.02 ms
    EXPECT_EQ(delay.getParameter(kTime), 229.0f);
    EXPECT_EQ(firstEcho(delay), 10099);
}

TEST(CDSPDelay, ReturnsToTheFreeTimeWhenSyncEnds) {
    CDSPDelay delay;
    delay.setParameter(kTime, 300.0f);
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kTempo, 90.0f);
    delay.setParameter(kSync, 0.5f);
    EXPECT_EQ(delay.getParameter(kTime), 333.0f);
    delay.setParameter(kSync, 0.0f);
    EXPECT_EQ(delay.getParameter(kTime), 300.0f);
    EXPECT_EQ(firstEcho(delay), 13231);
}

TEST(CDSPDelay, ATimeSetWhileSynchronisedLastsUntilTheNextTempo) {
    CDSPDelay delay;
    delay.setParameter(kTime, 300.0f);
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kTime, 800.0f);
    EXPECT_EQ(delay.getParameter(kTime), 800.0f);
    delay.setParameter(kSync, 1.0f);
    EXPECT_EQ(delay.getParameter(kTime), 800.0f);
    delay.setParameter(kTempo, 100.0f);
    EXPECT_EQ(delay.getParameter(kTime), 600.0f);
    delay.setParameter(kTime, 700.0f);
    delay.setParameter(kSync, 0.0f);
    EXPECT_EQ(delay.getParameter(kTime), 300.0f);
}

TEST(CDSPDelay, ATempoOnlyMattersInSync) {
    CDSPDelay delay;
    delay.setParameter(kTempo, 60.0f);
    EXPECT_EQ(delay.getParameter(kTempo), 60.0f);
    EXPECT_EQ(delay.getParameter(kTime), 1000.0f);
    delay.setParameter(kTime, 400.0f);
    delay.setParameter(kTempo, 30.0f);
    EXPECT_EQ(delay.getParameter(kTime), 400.0f);
    delay.setParameter(kSync, 1.0f);
    EXPECT_EQ(delay.getParameter(kTime), 2000.0f);
}

TEST(CDSPDelay, IgnoresThePresentTempo) {
    CDSPDelay delay;
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kTime, 800.0f);
    delay.setParameter(kTempo, 120.0f);
    EXPECT_EQ(delay.getParameter(kTime), 800.0f);
}

TEST(CDSPDelay, ATempoOfZeroSetsTheShortestDelay) {
    CDSPDelay delay;
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kTempo, 0.0f);
    EXPECT_EQ(delay.getParameter(kTime), 0.0f);
    EXPECT_EQ(firstEcho(delay), 1);
}

TEST(CDSPDelay, ASlowTempoGrowsTheLinesAndSilencesThem) {
    CDSPDelay delay;
    echoesOnly(delay);
    delay.setParameter(kFeedback, 1.0f);
    render(delay, makeSignal<float>(ESignal::Noise, 1, 60000), 4096);
    delay.setParameter(kTempo, 20.0f);
    delay.setParameter(kSync, 1.0f);
    EXPECT_EQ(delay.getParameter(kTime), 3000.0f);
    EXPECT_EQ(firstEcho(delay), 132301);
}

TEST(CDSPDelay, AQuarterOfTheBarIsAWholeNumberExceptWhenTheBeatsChange) {
    CDSPDelay delay;
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kBeatsPerBar, 6.0f);
    EXPECT_EQ(delay.getParameter(kBeatsPerBar), 6.0f);
    EXPECT_EQ(delay.getParameter(kTime), 750.0f);
    delay.setParameter(kTempo, 60.0f);
    EXPECT_EQ(delay.getParameter(kTime), 1000.0f);
    delay.setParameter(kSync, 0.5f);
    EXPECT_EQ(delay.getParameter(kTime), 500.0f);
    delay.setParameter(kBeatsPerBar, 9.0f);
    EXPECT_EQ(delay.getParameter(kTime), 1125.0f);
    delay.setParameter(kBeatsPerBar, 3.0f);
    delay.setParameter(kTempo, 100.0f);
    EXPECT_EQ(delay.getParameter(kTime), 0.0f);
}

TEST(CDSPDelay, ComparesNewBeatsWithTheStoredWholeNumber) {
    CDSPDelay delay;
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kBeatsPerBar, 6.5f);
    EXPECT_EQ(delay.getParameter(kBeatsPerBar), 6.0f);
    EXPECT_EQ(delay.getParameter(kTime), 812.0f);
    delay.setParameter(kBeatsPerBar, 6.0f);
    EXPECT_EQ(delay.getParameter(kTime), 812.0f);
    delay.setParameter(kBeatsPerBar, 6.5f);
    EXPECT_EQ(delay.getParameter(kTime), 812.0f);
}

TEST(CDSPDelay, BeatsMatterInSyncOnly) {
    CDSPDelay delay;
    delay.setParameter(kBeatsPerBar, 8.0f);
    EXPECT_EQ(delay.getParameter(kTime), 1000.0f);
    delay.setParameter(kSync, 1.0f);
    delay.setParameter(kSync, 0.5f);
    EXPECT_EQ(delay.getParameter(kTime), 500.0f);
}

TEST(CDSPDelay, StoresAnInaudibleLevelAsZero) {
    for (const int index : {kFeedback, kDryLevel, kWetLevel}) {
        CDSPDelay delay;
        for (const float tiny : {1e-21f, -1e-21f, 1e-39f}) {
            delay.setParameter(index, tiny);
            EXPECT_TRUE(sameBits(delay.getParameter(index), 0.0f)) << index << ' ' << tiny;
        }
        for (const float small : {1e-20f, -1e-20f, 1.0f}) {
            delay.setParameter(index, small);
            EXPECT_EQ(delay.getParameter(index), small) << index;
        }
    }
}

TEST(CDSPDelay, PingPongIsOnFromOneHalf) {
    CDSPDelay delay;
    delay.setParameter(kPingPong, std::nextafter(0.5f, 0.0f));
    EXPECT_EQ(delay.getParameter(kPingPong), 0.0f);
    delay.setParameter(kPingPong, 0.5f);
    EXPECT_EQ(delay.getParameter(kPingPong), 1.0f);
}

TEST(CDSPDelay, RepeatsEachChannelOnItsOwnSide) {
    auto delay = makeShort();  // 88 samples
    echoesOnly(*delay);
    TStereo<float> output = render(*delay, impulse(300, 1.0f, 0.0f), 64);
    EXPECT_EQ(output.left(0), 0.0f);
    EXPECT_EQ(output.left(89), 1.0f);
    EXPECT_EQ(output.left(178), 0.5f);
    EXPECT_EQ(output.left(267), 0.25f);
    EXPECT_EQ(output.channels[1], std::vector<float>(300, 0.0f));
}

TEST(CDSPDelay, PingPongRepeatsOnAlternateSides) {
    auto delay = makeShortPingPong();
    echoesOnly(*delay);
    TStereo<float> output = render(*delay, impulse(400, 1.0f, 0.0f), 64);
    EXPECT_EQ(output.left(89), 1.0f);
    EXPECT_EQ(output.right(89), 0.0f);
    EXPECT_EQ(output.left(178), 0.0f);
    EXPECT_EQ(output.right(178), 0.5f);
    EXPECT_EQ(output.left(267), 0.25f);
    EXPECT_EQ(output.right(356), 0.125f);
}

TEST(CDSPDelay, MixesDryAndWet) {
    auto delay = makeShort();
    delay->setParameter(kDryLevel, 0.25f);
    delay->setParameter(kWetLevel, 0.5f);
    TStereo<double> output = render(*delay, impulse(200, 1.0, -1.0), 64);
    EXPECT_EQ(output.left(0), 0.25);
    EXPECT_EQ(output.right(0), -0.25);
    EXPECT_EQ(output.left(89), 0.5);
    EXPECT_EQ(output.right(89), -0.5);
}

TEST(CDSPDelay, InDoublePrecisionTheDrySignalIsDoubleAndTheLineSingle) {
    auto delay = makeShort();
    const double sample = 1.0 / 3.0;
    TStereo<double> output = render(*delay, impulse(200, sample, sample), 64);
    EXPECT_EQ(output.left(0), sample);
    EXPECT_EQ(output.left(89), double{0.70710677f * static_cast<float>(sample)});
}

TEST(CDSPDelay, AChangeOfTimeKeepsTheContentsOfTheLines) {
    auto delay = makeShort();
    echoesOnly(*delay);
    render(*delay, impulse(50, 1.0f, 1.0f), 50);
    delay->setParameter(kTime, 3.0f);  // 132 samples
    TStereo<float> output = render(*delay, TStereo<float>(100), 100);
    EXPECT_EQ(output.left(133 - 50), 1.0f);
}

TEST(CDSPDelay, ResetSilencesTheLinesAndKeepsTheParameters) {
    CDSPDelay delay;
    render(delay, makeSignal<float>(ESignal::Noise, 4, 131072), 4096);
    delay.setParameter(kTime, 400.0f);
    delay.setParameter(kFeedback, 0.75f);
    delay.reset();
    EXPECT_EQ(delay.getParameter(kTime), 400.0f);
    EXPECT_EQ(delay.getParameter(kFeedback), 0.75f);
    const TStereo<float> silence(131072);
    EXPECT_TRUE(render(delay, silence, 4096) == silence);
}

TEST(CDSPDelay, KeepsTheContractOfAModule) {
    for (const auto &make : {makeShort, makeShortPingPong}) {
        expectBlocksOfAnyLength(make);
        expectEmptyBlocksDoNothing(make);
        expectInstancesApart(make);
        expectSilenceAfterABurst<float>(make, 40000);
        expectSilenceAfterABurst<double>(make, 40000);
    }
}

TEST(CDSPDelay, EqualsThePlainVersionAtEveryTime) {
    expectSameBits([] { return std::make_unique<CDSPDelay>(); },
                   [] { return std::make_unique<CPlainDelay>(); },
                   levelsAnd({{kTime, 0.0f, 40.0f}}), 1000);
    expectSameBits([] { return std::make_unique<CDSPDelay>(); },
                   [] { return std::make_unique<CPlainDelay>(); },
                   levelsAnd({{kTime, 50.0f, 1500.0f}}), 300);
}

TEST(CDSPDelay, EqualsThePlainVersionInTempo) {
    expectSameBits([] { return std::make_unique<CDSPDelay>(); },
                   [] { return std::make_unique<CPlainDelay>(); },
                   levelsAnd({{kTempo, 20.0f, 60000.0f},
                              {kSync, 0.0f, 1.0f},
                              {kBeatsPerBar, 1.0f, 12.0f},
                              {kTempo, 2000.0f, 80000.0f},
                              {kTime, 0.0f, 10.0f}}),
                   1000);
}

TEST(CDSPDelay, EqualsThePlainVersionAsTheLinesWrap) {
    expectSameBits(makeNearTheWrap<CDSPDelay>, makeNearTheWrap<CPlainDelay>,
                   levelsAnd({{kTime, 0.0f, 3000.0f}}), 200);
}
