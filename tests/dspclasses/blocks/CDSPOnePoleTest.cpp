#include "dspclasses/blocks/CDSPOnePole.h"

#include "dspclasses/blocks/PlainOnePole.h"
#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>

TEST(CDSPOnePole, StartsByHoldingZero) {
    CDSPOnePole filter;
    EXPECT_EQ(filter.getPole(), 1.0f);
    EXPECT_EQ(filter.tick(1.0f), 0.0f);
    EXPECT_EQ(filter.tick(-3.0f), 0.0f);
}

TEST(CDSPOnePole, HoldsItsStateWithAPoleOfOne) {
    CDSPOnePole filter;
    filter.setPole(0.0f);
    EXPECT_EQ(filter.tick(0.5f), 0.5f);
    filter.setPole(1.0f);
    EXPECT_EQ(filter.tick(0.25f), 0.5f);
    EXPECT_EQ(filter.tick(-1.0f), 0.5f);
}

TEST(CDSPOnePole, GainAndPoleAddUpToOne) {
    CDSPOnePole filter;
    filter.setPole(0.25f);
    EXPECT_EQ(filter.tick(1.0f), 0.75f);
    EXPECT_EQ(filter.tick(0.0f), 0.1875f);
}

TEST(CDSPOnePole, PassesZeroHertzAndAttenuatesHalfTheSampleRateByItsFormula) {
    for (const float pole : {0.0f, 0.25f, 0.5f, 0.9f}) {
        CDSPOnePole low, high;
        low.setPole(pole);
        high.setPole(pole);
        float atZero = 0.0f, atHalfTheRate = 0.0f;
        for (int n = 0; n < 400; ++n) {
            atZero = low.tick(1.0f);
            atHalfTheRate = high.tick(n % 2 == 0 ? -1.0f : 1.0f);
        }
        EXPECT_NEAR(atZero, 1.0f, 1e-6) << pole;
        EXPECT_NEAR(atHalfTheRate, (1.0f - pole) / (1.0f + pole), 1e-6) << pole;
    }
}

TEST(CDSPOnePole, ClearResetsOnlyTheState) {
    CDSPOnePole filter;
    filter.setPole(0.25f);
    filter.tick(1.0f);
    filter.clear();
    EXPECT_EQ(filter.tick(0.0f), 0.0f);
    EXPECT_EQ(filter.getPole(), 0.25f);
    EXPECT_EQ(filter.tick(1.0f), 0.75f);
}

TEST(CDSPOnePole, FlushesADenormalInItsStateAndItsResult) {
    CDSPOnePole filter;
    filter.setPole(0.5f);
    EXPECT_EQ(filter.tick(1.5e-38f), 0.0f);
    filter.setPole(1.0f);
    EXPECT_EQ(filter.tick(0.0f), 0.0f);
}

TEST(CDSPOnePole, EqualsThePlainVersionBitForBit) {
    CDSPOnePole filter;
    CPlainOnePole plain;
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        CRandom random(seed);
        const auto pole = static_cast<float>(random.real(0.0, 1.0));
        filter.setPole(pole);
        plain.setPole(pole);
        for (const double sample : makeChannel(ESignal::Mixed, seed, 500)) {
            const auto x = static_cast<float>(sample);
            ASSERT_TRUE(sameBits(filter.tick(x), plain.tick(x))) << "seed " << seed;
        }
    }
}
