#include "dspclasses/kernels/GuardedRecursion.h"

#include "dspclasses/support/Signals.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

constexpr double denormal = 1e-310;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// @return whether a watch would have the values of one channel guarded, beside a steady other.
bool isAlarmedBy(const std::vector<double> &values, double other = 0.5) {
    CWatchingGuard left, right;
    for (const double value : values) {
        left.contain(left.flush(frameOf(value, other)));
        right.contain(right.flush(frameOf(other, value)));
    }
    EXPECT_EQ(left.mightHaveActed(), right.mightHaveActed());
    return left.mightHaveActed();
}

/// y = x + y1 / 2, contained.
struct SHalving {
    SDoubles2 y1 = inBothChannels(0.0);

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        return y1 = guard.contain(guard.flush(x + inBothChannels(0.5) * y1));
    }

    SDoubles2 history() const { return y1; }
};

/// y = factor x, and what all that came out adds up to.
struct SScaling {
    double factor;
    SDoubles2 sum = inBothChannels(0.0);

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        const SDoubles2 y = guard.contain(guard.flush(inBothChannels(factor) * x));
        sum = sum + y;
        return y;
    }

    SDoubles2 history() const { return inBothChannels(0.0); }
};

/// Four frames at a time.
TStereo<float> halveInSteps(SHalving &filter, TStereo<float> input) {
    TStereo<float> output(input.frames());
    const auto in = input.pointers(), out = output.pointers();
    for (int i = 0; i < input.frames(); i += 4)
        runUpToFour<EInput::Read>(filter, in[0] + i, in[1] + i, out[0] + i, out[1] + i,
                                  std::min(4, input.frames() - i));
    return output;
}

template <typename Sample>
TStereo<Sample> halve(SHalving &filter, TStereo<Sample> input) {
    TStereo<Sample> output(input.frames());
    const auto in = input.pointers(), out = output.pointers();
    runGuarded<EInput::Read>(filter, in.data(), out.data(), input.frames(), [](SHalving &) {});
    return output;
}
template <typename Sample>
TStereo<Sample> halve(const TStereo<Sample> &input) {
    SHalving filter;
    return halve(filter, input);
}

}  // namespace

TEST(CWatchingGuard, IsCalmWhileNothingNeedsAGuard) {
    EXPECT_FALSE(isAlarmedBy({0.1, -0.2, 5.0, -5.0, std::numeric_limits<double>::min()}));
    EXPECT_FALSE(isAlarmedBy({}));
}

TEST(CWatchingGuard, IsCalmInSilence) {
    EXPECT_FALSE(isAlarmedBy({0.0, 0.0, 0.0}));
    EXPECT_FALSE(isAlarmedBy({0.0, 0.0, 0.0}, 0.0));
}

TEST(CWatchingGuard, SeesWhatAGuardWouldChange) {
    EXPECT_TRUE(isAlarmedBy({0.1, denormal, 0.1}));
    EXPECT_TRUE(isAlarmedBy({0.1, -denormal, 0.1}));
    EXPECT_TRUE(isAlarmedBy({std::numeric_limits<double>::denorm_min()}));
    EXPECT_TRUE(isAlarmedBy({0.0, -0.0, 0.0}));
    EXPECT_TRUE(isAlarmedBy({0.1, 5.1, 0.1}));
    EXPECT_TRUE(isAlarmedBy({0.1, -5.1, 0.1}));
    EXPECT_TRUE(isAlarmedBy({-std::numeric_limits<double>::infinity()}));
}

TEST(CWatchingGuard, IsNotBlindedByANaN) {
    EXPECT_FALSE(isAlarmedBy({notANumber, 0.1}));
    EXPECT_TRUE(isAlarmedBy({denormal, notANumber}));
    EXPECT_TRUE(isAlarmedBy({notANumber, denormal}));
    EXPECT_TRUE(isAlarmedBy({8.0, notANumber}));
    EXPECT_TRUE(isAlarmedBy({notANumber, 8.0}));
}

TEST(SActingGuard, LetsANaNPass) {
    SActingGuard guard;
    EXPECT_TRUE(std::isnan(leftOf(guard.flush(inBothChannels(notANumber)))));
    EXPECT_TRUE(std::isnan(leftOf(guard.contain(inBothChannels(notANumber)))));
}

TEST(SActingGuard, ReplacesARunawayByOneOfItsSign) {
    SActingGuard guard;
    const SDoubles2 replaced = guard.contain(frameOf(5.5, -5.5));
    EXPECT_EQ(leftOf(replaced), 1.0);
    EXPECT_EQ(rightOf(replaced), -1.0);
    const SDoubles2 kept = guard.contain(frameOf(5.0, -5.0));
    EXPECT_EQ(leftOf(kept), 5.0);
    EXPECT_EQ(rightOf(kept), -5.0);
}

TEST(GuardedRecursion, GuardsAtEveryPlaceOfEveryBlock) {
    for (const double trouble : {8.0, -8.0, denormal, -0.0}) {
        for (const int frames : {1, 2, 3, 4, 5, 63, 64, 65, 67, 131}) {
            for (int place = 0; place < frames; ++place) {
                TStereo<double> input(frames), expected(frames);
                input.right(place) = trouble;
                double y = 0.0;
                for (int i = 0; i < frames; ++i) {
                    y = input.right(i) + 0.5 * y;
                    if (y < -5.0 || y > 5.0)
                        y = std::copysign(1.0, y);
                    y = flushDenormal(y);
                    expected.right(i) = y;
                }
                EXPECT_TRUE(halve(input) == expected)
                    << trouble << " at frame " << place << " of " << frames;
            }
        }
    }
}

TEST(GuardedRecursion, GuardsAtEveryPlaceOfEveryStep) {
    for (const float trouble : {8.0f, -8.0f, 6.0f, -0.0f, 1e-30f}) {
        for (const int frames : {1, 2, 3, 4, 5, 8, 11, 1100}) {
            for (int place = 0; place < std::min(frames, 12); ++place) {
                TStereo<float> input(frames);
                for (int i = 0; i < frames; ++i)
                    input.left(i) = i % 3 == 0 ? 0.0f : 0.25f;
                input.right(place) = trouble;
                SHalving filter;
                EXPECT_TRUE(halveInSteps(filter, input) == halve(input))
                    << trouble << " at frame " << place << " of " << frames;
                // Even 1e-30 has been halved to a denormal by then, and become 0.
                if (frames == 1100) {
                    EXPECT_EQ(rightOf(filter.y1), 0.0);
                }
            }
        }
    }
}

TEST(GuardedRecursion, GuardsWhatIsBeyondTheLimitAsADoubleAlone) {
    TStereo<float> input(4);
    input.left(0) = input.right(2) = 5.0f;
    SHalving filter;
    filter.y1 = frameOf(2e-9, 2e-8);
    const TStereo<float> output = halveInSteps(filter, input);
    EXPECT_EQ(output.channels[0][0], 1.0f);
    EXPECT_EQ(output.channels[1][2], 1.0f);
}

TEST(GuardedRecursion, TakesNoInputForSilenceThatComesToNothing) {
    TStereo<float> input(4), output(4);
    input.right(1) = 1e-20f;
    const auto in = input.pointers(), out = output.pointers();
    SScaling filter{1e-300};
    runUpToFour<EInput::Read>(filter, in[0], in[1], out[0], out[1], 4);
    EXPECT_EQ(rightOf(filter.sum), 0.0) << "1e-320 is a denormal";
}

TEST(GuardedRecursion, MakesNoNegativeZeroOfSilence) {
    const TStereo<float> silence(4);
    TStereo<float> input(4), output(4, 1.0f);
    const auto in = input.pointers(), out = output.pointers();
    SScaling filter{-1.0};
    runUpToFour<EInput::Read>(filter, in[0], in[1], out[0], out[1], 4);
    EXPECT_TRUE(output == silence);
}

TEST(GuardedRecursion, GuardsAChannelBesideANaN) {
    for (const float trouble : {8.0f, -8.0f, 0.0f, -0.0f}) {
        for (const bool isRight : {false, true}) {
            TStereo<float> input(8);
            for (int i = 0; i < input.frames(); ++i) {
                input.channels[isRight ? 1 : 0][static_cast<std::size_t>(i)] = trouble;
                input.channels[isRight ? 0 : 1][static_cast<std::size_t>(i)] = NAN;
            }
            SHalving inSteps, inGroups;
            inSteps.y1 = inGroups.y1 = inBothChannels(std::numeric_limits<double>::min());
            SCOPED_TRACE(testing::Message() << trouble << (isRight ? " right" : " left"));
            EXPECT_TRUE(halveInSteps(inSteps, input) == halve(inGroups, input));
            EXPECT_TRUE(sameBits(leftOf(inSteps.y1), leftOf(inGroups.y1)));
            EXPECT_TRUE(sameBits(rightOf(inSteps.y1), rightOf(inGroups.y1)));
        }
    }
}

TEST(GuardedRecursion, TakesAQuietChannelForWhatItIs) {
    const TStereo<float> silence(4);
    SHalving filter;
    filter.y1 = frameOf(0.0, std::numeric_limits<double>::min());
    EXPECT_TRUE(halveInSteps(filter, silence) == silence);
    EXPECT_EQ(rightOf(filter.y1), 0.0) << "half of the smallest normal number is a denormal";
    filter.y1 = frameOf(0.0, 1e-100);
    EXPECT_TRUE(halveInSteps(filter, silence) == silence);
    EXPECT_EQ(rightOf(filter.y1), 1e-100 / 16.0) << "below every float, yet no denormal";
}

TEST(GuardedRecursion, RefreshesBeforeEveryGroupAndNeverForNone) {
    for (const auto &[frames, groups] : {std::pair{0, 0}, {1, 1}, {64, 1}, {65, 2}, {200, 4}}) {
        TStereo<float> input(frames), output(frames);
        SHalving filter;
        int refreshed = 0;
        const auto in = input.pointers(), out = output.pointers();
        runGuarded<EInput::Read>(filter, in.data(), out.data(), frames,
                                 [&](SHalving &) { ++refreshed; });
        EXPECT_EQ(refreshed, groups) << frames;
    }
}
