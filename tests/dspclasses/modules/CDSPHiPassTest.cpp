#include "dspclasses/modules/CDSPHiPass.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainHiPass.h"
#include "dspclasses/support/Oracle.h"
#include "dspclasses/support/Response.h"

#include <cmath>
#include <memory>

using enum CDSPHiPass::EParameter;

namespace {

/// Fills the history before a test.
const TStereo<double> burst = makeSignal<double>(ESignal::Noise, 1, 50);
const TStereo<double> noise = makeSignal<double>(ESignal::Noise, 2, 50);

/// @return the pole, from the impulse response: 1, then pole - 1.
double poleOf(CDSPHiPass &filter) {
    filter.reset();
    TStereo<double> impulse(2);
    impulse.left(0) = 1.0;
    TStereo<double> response = render(filter, impulse, 2);
    EXPECT_EQ(response.left(0), 1.0);
    return response.left(1) + 1.0;
}

std::unique_ptr<CDSPHiPass> makeAt500Hz() {
    auto filter = std::make_unique<CDSPHiPass>();
    filter->setParameter(kCutoff, 500.0f);
    return filter;
}

}  // namespace

TEST(CDSPHiPass, StartsAtSixtyHertz) {
    CDSPHiPass filter;
    EXPECT_EQ(filter.getParameter(kCutoff), 60.0f);
    EXPECT_EQ(poleOf(filter), double{0.991487861f});
}

TEST(CDSPHiPass, ComputesThePoleFromTheCutoff) {
    CDSPHiPass filter;
    for (const float cutoff : {1.0f, 60.0f, 125.0f, 100.0f, 2000.0f}) {
        filter.setParameter(kCutoff, cutoff);
        EXPECT_NEAR(poleOf(filter), std::exp(-2.0 * 3.14159265 * cutoff / 44100.0), 1e-7) << cutoff;
    }
}

TEST(CDSPHiPass, IsThreeDecibelsDownAtALowCutoff) {
    CDSPHiPass filter;
    EXPECT_NEAR(decibelsAt(filter, 60.0), -2.97, 0.01);
    EXPECT_NEAR(decibelsAt(filter, 6.0), -20.03, 0.05);
    filter.setParameter(CDSPHiPass::kCutoff, 2000.0f);
    EXPECT_NEAR(decibelsAt(filter, 2000.0), -1.80, 0.01);
}

TEST(CDSPHiPass, IgnoresTheIndex) {
    CDSPHiPass filter;
    filter.setParameter(7, 200.0f);
    EXPECT_EQ(filter.getParameter(3), 200.0f);
}

TEST(CDSPHiPass, KeepsItsHistoryAtTheSameCutoff) {
    CDSPHiPass filter, untouched;
    render(filter, burst, 50);
    render(untouched, burst, 50);
    filter.setParameter(kCutoff, 60.0f);
    EXPECT_TRUE(render(filter, noise, 50) == render(untouched, noise, 50));
}

TEST(CDSPHiPass, RestartsFromSilenceAtANewCutoff) {
    CDSPHiPass filter, fresh;
    render(filter, burst, 50);
    filter.setParameter(kCutoff, 500.0f);
    fresh.setParameter(kCutoff, 500.0f);
    EXPECT_TRUE(render(filter, noise, 50) == render(fresh, noise, 50));
}

TEST(CDSPHiPass, KeepsItsPoleAtTheSameCutoff) {
    CDSPHiPass filter;
    const double before = poleOf(filter);
    filter.setSampleRate(88200.0f);
    filter.setParameter(kCutoff, 60.0f);
    EXPECT_EQ(poleOf(filter), before);
}

TEST(CDSPHiPass, ResetClearsTheHistoryAndKeepsTheCutoff) {
    CDSPHiPass filter, fresh;
    filter.setParameter(kCutoff, 500.0f);
    fresh.setParameter(kCutoff, 500.0f);
    render(filter, burst, 50);
    filter.reset();
    EXPECT_EQ(filter.getParameter(kCutoff), 500.0f);
    EXPECT_TRUE(render(filter, noise, 50) == render(fresh, noise, 50));
}

TEST(CDSPHiPass, LeavesDenormalsInTheInput) {
    CDSPHiPass filter;
    TStereo<float> input = makeSignal<float>(ESignal::Denormals, 4, 11), output(11);
    const TStereo<float> before = input;
    renderPart(filter, input, output, 0, 11);
    EXPECT_TRUE(input == before);
}

TEST(CDSPHiPass, FlushesADenormalOutputAtEveryPlaceOfABlock) {
    for (int place = 0; place < 11; ++place) {
        CDSPHiPass filter;
        TStereo<double> input(11);
        input.left(place) = 1e-310;
        input.right(place) = -0.0;
        TStereo<double> output = render(filter, input, 11);
        EXPECT_TRUE(output == TStereo<double>(11)) << place;
    }
}

TEST(CDSPHiPass, AcceptsBlocksOfAnyLength) {
    expectBlocksOfAnyLength(makeAt500Hz);
    expectEmptyBlocksDoNothing(makeAt500Hz);
}

TEST(CDSPHiPass, KeepsItsStateToItself) {
    expectInstancesApart(makeAt500Hz);
}

TEST(CDSPHiPass, FallsSilentAfterABurst) {
    expectSilenceAfterABurst<float>(makeAt500Hz, 20000);
    expectSilenceAfterABurst<double>(makeAt500Hz, 20000);
}

TEST(CDSPHiPass, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPHiPass>(); },
                   [] { return std::make_unique<CPlainHiPass>(); }, {{kCutoff, 1.0f, 2000.0f}});
}
