#include "dspclasses/modules/CDSPMono.h"

#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/support/Matrix.h"
#include "dspclasses/support/Oracle.h"

#include <limits>
#include <memory>

using enum CDSPMono::EParameter;

static std::int32_t modeOf(float value) {
    CDSPMono mono;
    mono.setParameter(kRouting, value);
    return mono.getMode();
}

TEST(CDSPMono, StartsWithCombine) {
    CDSPMono mono;
    EXPECT_EQ(mono.getMode(), CDSPMono::kCombine);
    EXPECT_EQ(mono.getParameter(kRouting), 0.0f);
}

TEST(CDSPMono, TruncatesThreeTimesTheValueToAMode) {
    const float third = 1.0f / 3.0f, twoThirds = 2.0f / 3.0f;
    EXPECT_EQ(modeOf(0.0f), CDSPMono::kCombine);
    EXPECT_EQ(modeOf(std::nextafter(third, 0.0f)), CDSPMono::kCombine);
    EXPECT_EQ(modeOf(third), CDSPMono::kAllLeft);
    EXPECT_EQ(modeOf(std::nextafter(twoThirds, 0.0f)), CDSPMono::kAllLeft);
    EXPECT_EQ(modeOf(twoThirds), CDSPMono::kAllRight);
    EXPECT_EQ(modeOf(0.99f), CDSPMono::kAllRight);
    EXPECT_EQ(modeOf(std::nextafter(1.0f, 0.0f)), CDSPMono::kAllRight);
    EXPECT_EQ(modeOf(1.0f), CDSPMono::kStereo);
}

TEST(CDSPMono, DoesNotClampAndTruncatesTowardsZero) {
    EXPECT_EQ(modeOf(-0.3f), CDSPMono::kCombine);
    EXPECT_EQ(modeOf(-0.34f), -1);
    EXPECT_EQ(modeOf(1.4f), 4);
    EXPECT_EQ(modeOf(1e20f), std::numeric_limits<std::int32_t>::min());
}

TEST(CDSPMono, ReadsAsAThirdOfTheModeAndSetsTheSameModeAgain) {
    for (const float value : {0.0f, 0.4f, 0.99f, 1.0f}) {
        CDSPMono mono;
        mono.setParameter(3, value);
        const std::int32_t mode = mono.getMode();
        EXPECT_EQ(mono.getParameter(2), static_cast<float>(mode) / 3.0f);
        mono.setParameter(kRouting, mono.getParameter(kRouting));
        EXPECT_EQ(mono.getMode(), mode) << value;
    }
}

TEST(CDSPMono, RoutesByMode) {
    const double rootHalf = 0.7071067690849304;
    const SMatrix expected[] = {{rootHalf, rootHalf, rootHalf, rootHalf},
                                {1.0, 1.0, 0.0, 0.0},
                                {0.0, 0.0, 1.0, 1.0},
                                {1.0, 0.0, 0.0, 1.0}};
    for (int mode = 0; mode < 4; ++mode) {
        CDSPMono mono;
        mono.setParameter(kRouting, static_cast<float>(mode) / 3.0f);
        EXPECT_EQ(matrixOf(mono), expected[mode]) << mode;
    }
}

template <typename Sample>
static void expectNothingWritten(float value) {
    CDSPMono mono;
    mono.setParameter(kRouting, value);
    TStereo<Sample> input(8, 1), output(8, 77);
    process(mono, input.pointers().data(), output.pointers().data(), 8);
    EXPECT_EQ(output, TStereo<Sample>(8, 77)) << value;
}

TEST(CDSPMono, WritesNothingInAnUnknownMode) {
    for (const float value : {-0.4f, 1.4f, 1e20f, std::numeric_limits<float>::quiet_NaN()}) {
        expectNothingWritten<float>(value);
        expectNothingWritten<double>(value);
    }
}

TEST(CDSPMono, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPMono>(); },
                   [] { return std::make_unique<CPlainMono>(); }, {{kRouting, 0.0f, 1.0f}});
}
