#include "dspclasses/kernels/GuardedSteps.h"

#include "dspclasses/kernels/HalvingFilter.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

/// y = factor x, and the sum of all outputs as a state.
struct SScaling {
    double factor;
    SDoubles2 sum = inBothChannels(0.0);

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        const SDoubles2 y = guard.contain(guard.flush(inBothChannels(factor) * x));
        sum = sum + y;
        return y;
    }
};

TStereo<float> halveFourByFour(SHalving &filter, TStereo<float> input) {
    TStereo<float> output(input.frames());
    const auto in = input.pointers(), out = output.pointers();
    for (int i = 0; i < input.frames(); i += 4)
        runGuardedStep<EInput::Read>(filter, in[0] + i, in[1] + i, out[0] + i, out[1] + i,
                                     std::min(4, input.frames() - i));
    return output;
}

}  // namespace

TEST(GuardedSteps, ProduceTheBitsOfAGuardedGroup) {
    for (const float trouble : {8.0f, -8.0f, 6.0f, -0.0f, 1e-30f}) {
        for (const int frames : {1, 2, 3, 4, 5, 8, 11, 1100}) {
            for (int place = 0; place < std::min(frames, 12); ++place) {
                TStereo<float> input(frames);
                for (int i = 0; i < frames; ++i)
                    input.left(i) = i % 3 == 0 ? 0.0f : 0.25f;
                input.right(place) = trouble;
                SHalving filter;
                EXPECT_TRUE(halveFourByFour(filter, input) == halve(input))
                    << trouble << " at frame " << place << " of " << frames;
                // After 1100 frames even 8 has been halved to a denormal.
                if (frames == 1100) {
                    EXPECT_EQ(rightOf(filter.y1), 0.0);
                }
            }
        }
    }
}

TEST(GuardedSteps, ContainAValueThatExceedsFiveOnlyBeforeItIsRoundedToFloat) {
    TStereo<float> input(4);
    input.left(0) = input.right(2) = 5.0f;
    SHalving filter;
    filter.y1 = frameOf(2e-9, 2e-8);
    const TStereo<float> output = halveFourByFour(filter, input);
    EXPECT_EQ(output.channels[0][0], 1.0f);
    EXPECT_EQ(output.channels[1][2], 1.0f);
}

TEST(GuardedSteps, FlushADenormalThatIsZeroAsAFloat) {
    TStereo<float> input(4), output(4);
    input.right(1) = 1e-20f;
    const auto in = input.pointers(), out = output.pointers();
    SScaling filter{1e-300};
    runGuardedStep<EInput::Read>(filter, in[0], in[1], out[0], out[1], 4);
    EXPECT_EQ(rightOf(filter.sum), 0.0) << "1e-320 is a denormal";
}

TEST(GuardedSteps, TurnNegativeZerosIntoZeros) {
    const TStereo<float> silence(4);
    TStereo<float> input(4), output(4, 1.0f);
    const auto in = input.pointers(), out = output.pointers();
    SScaling filter{-1.0};
    runGuardedStep<EInput::Read>(filter, in[0], in[1], out[0], out[1], 4);
    EXPECT_TRUE(output == silence);
}

TEST(GuardedSteps, GuardAChannelBesideANaN) {
    for (const float trouble : {8.0f, -8.0f, 0.0f, -0.0f}) {
        for (const bool isRight : {false, true}) {
            TStereo<float> input(8);
            for (int i = 0; i < input.frames(); ++i) {
                input.channels[isRight ? 1 : 0][static_cast<std::size_t>(i)] = trouble;
                input.channels[isRight ? 0 : 1][static_cast<std::size_t>(i)] = NAN;
            }
            SHalving fourByFour, inGroups;
            fourByFour.y1 = inGroups.y1 = inBothChannels(std::numeric_limits<double>::min());
            SCOPED_TRACE(testing::Message() << trouble << (isRight ? " right" : " left"));
            EXPECT_TRUE(halveFourByFour(fourByFour, input) == halve(inGroups, input));
            EXPECT_TRUE(sameBits(leftOf(fourByFour.y1), leftOf(inGroups.y1)));
            EXPECT_TRUE(sameBits(rightOf(fourByFour.y1), rightOf(inGroups.y1)));
        }
    }
}

TEST(GuardedSteps, FlushTheStateOnlyOnceItIsADenormalAsADouble) {
    const TStereo<float> silence(4);
    SHalving filter;
    filter.y1 = frameOf(0.0, std::numeric_limits<double>::min());
    EXPECT_TRUE(halveFourByFour(filter, silence) == silence);
    EXPECT_EQ(rightOf(filter.y1), 0.0) << "half of the smallest normal number is a denormal";
    filter.y1 = frameOf(0.0, 1e-100);
    EXPECT_TRUE(halveFourByFour(filter, silence) == silence);
    EXPECT_EQ(rightOf(filter.y1), 1e-100 / 16.0) << "below every float, yet no denormal";
}
