#include "dspclasses/modules/CDSPParametric.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainParametric.h"
#include "dspclasses/support/Oracle.h"

#include <memory>

using enum CDSPParametric::EParameter;

namespace {

std::unique_ptr<CDSPParametric> makeWarm() {
    auto parametric = std::make_unique<CDSPParametric>();
    parametric->setParameter(kFrequency, 300.0f);
    parametric->setParameter(kBandwidth, 0.25f);
    parametric->setParameter(kGain, -9.0f);
    return parametric;
}

/// @return the filter that the module must equal.
CDSPRBJFilter makePeak(float frequency, float bandwidth, float gainDb) {
    return CDSPRBJFilter(CDSPRBJFilter::EKind::Peaking, frequency, gainDb, bandwidth, true);
}

const TStereo<double> noise = makeSignal<double>(ESignal::Noise, 2, 60);

}  // namespace

TEST(CDSPParametric, StartsFlatAt440Hertz) {
    CDSPParametric parametric;
    EXPECT_EQ(parametric.getParameter(kFrequency), 440.0f);
    EXPECT_EQ(parametric.getParameter(kBandwidth), 0.5f);
    EXPECT_EQ(parametric.getParameter(kGain), 0.0f);
    CDSPRBJFilter peak = makePeak(440.0f, 0.5f, 0.0f);
    EXPECT_TRUE(render(parametric, noise, 60) == render(peak, noise, 60));
}

TEST(CDSPParametric, IsAPeakWithFrequencyBandwidthAndGain) {
    CDSPRBJFilter peak = makePeak(300.0f, 0.25f, -9.0f);
    EXPECT_TRUE(render(*makeWarm(), noise, 60) == render(peak, noise, 60));
    EXPECT_EQ(makeWarm()->getParameter(kFrequency), 300.0f);
    EXPECT_EQ(makeWarm()->getParameter(kBandwidth), 0.25f);
    EXPECT_EQ(makeWarm()->getParameter(kGain), -9.0f);
}

TEST(CDSPParametric, IgnoresAnUnknownIndex) {
    CDSPParametric parametric, untouched;
    for (const int index : {-1, 3, 100})
        parametric.setParameter(index, 5.0f);
    EXPECT_TRUE(render(parametric, noise, 60) == render(untouched, noise, 60));
}

TEST(CDSPParametric, ResetClearsTheFilterAndKeepsTheParameters) {
    auto parametric = makeWarm();
    const auto fresh = render(*parametric, noise, 60);
    parametric->reset();
    EXPECT_TRUE(render(*parametric, noise, 60) == fresh);
    EXPECT_EQ(parametric->getParameter(kGain), -9.0f);
}

TEST(CDSPParametric, AcceptsBlocksOfAnyLength) {
    expectBlocksOfAnyLength(makeWarm);
    expectEmptyBlocksDoNothing(makeWarm);
}

TEST(CDSPParametric, KeepsItsStateToItself) {
    expectInstancesApart(makeWarm);
}

TEST(CDSPParametric, EqualsThePlainVersionBitForBit) {
    expectSameBits(
        [] { return std::make_unique<CDSPParametric>(); },
        [] { return std::make_unique<CPlainParametric>(); },
        {{kFrequency, 100.0f, 6000.0f}, {kBandwidth, 0.125f, 1.0f}, {kGain, -12.0f, 12.0f}});
}
