#include "dspclasses/modules/CDSPBase.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>

TEST(CDSPBase, StartsAt44100) {
    CDSPBase base;
    EXPECT_EQ(base.getSampleRate(), 44100.0f);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(base.getInvSampleRate()), 0x37BE37C6u);
    EXPECT_EQ(base.getRateRatio(), 1.0f);
}

TEST(CDSPBase, StoresTheRatioOfTheLastChangeOfRate) {
    CDSPBase base;
    base.setSampleRate(88200.0f);
    EXPECT_EQ(base.getSampleRate(), 88200.0f);
    EXPECT_EQ(base.getInvSampleRate(), 1.0f / 88200.0f);
    EXPECT_EQ(base.getRateRatio(), 2.0f);
    base.setSampleRate(22050.0f);
    EXPECT_EQ(base.getRateRatio(), 0.25f);
}

TEST(CDSPBase, IgnoresARateOfZeroAndThePresentOne) {
    CDSPBase base;
    base.setSampleRate(48000.0f);
    base.setSampleRate(0.0f);
    base.setSampleRate(48000.0f);
    EXPECT_EQ(base.getSampleRate(), 48000.0f);
    EXPECT_EQ(base.getInvSampleRate(), 1.0f / 48000.0f);
    EXPECT_EQ(base.getRateRatio(), 48000.0f / 44100.0f);
}

TEST(CDSPBase, DoesNothingInItsOperations) {
    CDSPBase base;
    float input = 1.0f, output = 2.0f;
    double inputD = 1.0, outputD = 2.0;
    float *in[] = {&input, &input}, *out[] = {&output, &output};
    double *inD[] = {&inputD, &inputD}, *outD[] = {&outputD, &outputD};
    base.setParameter(0, 0.5f);
    base.processReplacing(in, out, 1);
    base.processDoubleReplacing(inD, outD, 1);
    base.reset();
    EXPECT_EQ(base.getParameter(0), 0.0f);
    EXPECT_EQ(output, 2.0f);
    EXPECT_EQ(outputD, 2.0);
}
