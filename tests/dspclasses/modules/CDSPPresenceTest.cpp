#include "dspclasses/modules/CDSPPresence.h"

#include "dspclasses/modules/ModuleContract.h"
#include "dspclasses/modules/PlainPresence.h"
#include "dspclasses/support/Oracle.h"

#include <memory>

using enum CDSPPresence::EParameter;

namespace {

std::unique_ptr<CDSPPresence> makeBright() {
    auto presence = std::make_unique<CDSPPresence>();
    presence->setParameter(kFrequency, 4000.0f);
    presence->setParameter(kGain, 9.0f);
    return presence;
}

/// @return the filter that the module must equal.
CDSPRBJFilter makePeak(float frequency, float gainDb) {
    return CDSPRBJFilter(CDSPRBJFilter::EKind::Peaking, frequency, gainDb, 0.5f, true);
}

const TStereo<double> noise = makeSignal<double>(ESignal::Noise, 2, 60);

}  // namespace

TEST(CDSPPresence, StartsFlatAt2000Hertz) {
    CDSPPresence presence;
    EXPECT_EQ(presence.getParameter(kFrequency), 2000.0f);
    EXPECT_EQ(presence.getParameter(kGain), 0.0f);
    CDSPRBJFilter peak = makePeak(2000.0f, 0.0f);
    EXPECT_TRUE(render(presence, noise, 60) == render(peak, noise, 60));
}

TEST(CDSPPresence, IsAPeakOfHalfAnOctave) {
    CDSPRBJFilter peak = makePeak(4000.0f, 9.0f);
    EXPECT_TRUE(render(*makeBright(), noise, 60) == render(peak, noise, 60));
    EXPECT_EQ(makeBright()->getParameter(kFrequency), 4000.0f);
    EXPECT_EQ(makeBright()->getParameter(kGain), 9.0f);
}

TEST(CDSPPresence, IgnoresAnUnknownIndex) {
    CDSPPresence presence, untouched;
    for (const int index : {-1, 2, 100})
        presence.setParameter(index, 5.0f);
    EXPECT_TRUE(render(presence, noise, 60) == render(untouched, noise, 60));
}

TEST(CDSPPresence, ResetClearsTheFilterAndKeepsTheParameters) {
    auto presence = makeBright();
    const auto fresh = render(*presence, noise, 60);
    presence->reset();
    EXPECT_TRUE(render(*presence, noise, 60) == fresh);
    EXPECT_EQ(presence->getParameter(kGain), 9.0f);
}

TEST(CDSPPresence, AcceptsBlocksOfAnyLength) {
    expectBlocksOfAnyLength(makeBright);
    expectEmptyBlocksDoNothing(makeBright);
}

TEST(CDSPPresence, KeepsItsStateToItself) {
    expectInstancesApart(makeBright);
}

TEST(CDSPPresence, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPPresence>(); },
                   [] { return std::make_unique<CPlainPresence>(); },
                   {{kFrequency, 1000.0f, 6000.0f}, {kGain, -12.0f, 12.0f}});
}
