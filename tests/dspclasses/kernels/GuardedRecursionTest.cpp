#include "dspclasses/kernels/GuardedRecursion.h"

#include "dspclasses/support/Signals.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

constexpr double denormal = 1e-310;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// @return whether a watch alarms after these values in one channel, beside a steady value in the
///         other. Both channels must agree.
bool alarms(const std::vector<double> &values, double other = 0.5) {
    CWatchingGuard left, right;
    for (const double value : values) {
        left.contain(left.flush(frameOf(value, other)));
        right.contain(right.flush(frameOf(other, value)));
    }
    EXPECT_EQ(left.mightHaveActed(), right.mightHaveActed());
    return left.mightHaveActed();
}

/// y = x + y1 / 2, guarded.
struct SHalving {
    SDoubles2 y1 = inBothChannels(0.0);

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        return y1 = guard.contain(guard.flush(x + inBothChannels(0.5) * y1));
    }
};

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

/// Watches four frames at a time, as a loop does that works on more than the filter.
TStereo<float> halveFourByFour(SHalving &filter, TStereo<float> input) {
    TStereo<float> output(input.frames());
    const auto in = input.pointers(), out = output.pointers();
    for (int i = 0; i < input.frames(); i += 4)
        runWatched<EInput::Read>(filter, in[0] + i, in[1] + i, out[0] + i, out[1] + i,
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

TEST(GuardedRecursion, EachKindOfValueIsGuardedAndWatchedAsTheTableSays) {
    constexpr double smallestNormal = std::numeric_limits<double>::min();
    const double aboveFive = std::nextafter(5.0, 6.0);
    struct SRow {
        double value, flushed, contained;
        bool alarms;
    };
    for (const auto &row : {SRow{0.0, 0.0, 0.0, false},
                            {-0.0, 0.0, -0.0, true},
                            {denormal, 0.0, denormal, true},
                            {-denormal, 0.0, -denormal, true},
                            {std::numeric_limits<double>::denorm_min(), 0.0,
                             std::numeric_limits<double>::denorm_min(), true},
                            {smallestNormal, smallestNormal, smallestNormal, false},
                            {0.1, 0.1, 0.1, false},
                            {5.0, 5.0, 5.0, false},
                            {-5.0, -5.0, -5.0, false},
                            {aboveFive, aboveFive, 1.0, true},
                            {-aboveFive, -aboveFive, -1.0, true},
                            {-infinity, -infinity, -1.0, true},
                            {notANumber, notANumber, notANumber, false}}) {
        SActingGuard guard;
        for (const SDoubles2 frame : {frameOf(row.value, 0.5), frameOf(0.5, row.value)}) {
            const bool isLeft = sameBits(leftOf(frame), row.value);
            const auto tested = isLeft ? leftOf : rightOf, other = isLeft ? rightOf : leftOf;
            EXPECT_TRUE(sameBits(tested(guard.flush(frame)), row.flushed)) << row.value;
            EXPECT_TRUE(sameBits(tested(guard.contain(frame)), row.contained)) << row.value;
            EXPECT_EQ(other(guard.flush(frame)), 0.5) << row.value;
            EXPECT_EQ(other(guard.contain(frame)), 0.5) << row.value;
        }
        EXPECT_EQ(alarms({row.value}), row.alarms) << row.value;
    }
}

TEST(CWatchingGuard, StaysCalmInSilence) {
    EXPECT_FALSE(alarms({0.0, 0.0, 0.0}));
    EXPECT_FALSE(alarms({0.0, 0.0, 0.0}, 0.0));
    EXPECT_FALSE(alarms({}));
}

TEST(CWatchingGuard, AlarmsForAZeroAmongOtherValues) {
    EXPECT_TRUE(alarms({0.0, 0.1}));
}

TEST(CWatchingGuard, RemembersOneValueAmongOthers) {
    EXPECT_FALSE(alarms({0.1, -0.2, 5.0, -5.0}));
    for (const double value : {denormal, -denormal, 5.1, -5.1, infinity})
        EXPECT_TRUE(alarms({0.1, value, 0.1})) << value;
    EXPECT_TRUE(alarms({0.0, -0.0, 0.0}));
}

TEST(CWatchingGuard, ANaNHidesNoOtherValue) {
    EXPECT_FALSE(alarms({notANumber, 0.1}));
    for (const double value : {denormal, 8.0}) {
        EXPECT_TRUE(alarms({value, notANumber})) << value;
        EXPECT_TRUE(alarms({notANumber, value})) << value;
    }
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

TEST(GuardedRecursion, WatchingFourFramesGivesTheBitsOfWatchingAGroup) {
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

TEST(GuardedRecursion, ContainsAValueThatExceedsFiveOnlyBeforeItIsRoundedToFloat) {
    TStereo<float> input(4);
    input.left(0) = input.right(2) = 5.0f;
    SHalving filter;
    filter.y1 = frameOf(2e-9, 2e-8);
    const TStereo<float> output = halveFourByFour(filter, input);
    EXPECT_EQ(output.channels[0][0], 1.0f);
    EXPECT_EQ(output.channels[1][2], 1.0f);
}

TEST(GuardedRecursion, FlushesADenormalThatIsZeroAsAFloat) {
    TStereo<float> input(4), output(4);
    input.right(1) = 1e-20f;
    const auto in = input.pointers(), out = output.pointers();
    SScaling filter{1e-300};
    runWatched<EInput::Read>(filter, in[0], in[1], out[0], out[1], 4);
    EXPECT_EQ(rightOf(filter.sum), 0.0) << "1e-320 is a denormal";
}

TEST(GuardedRecursion, TurnsNegativeZerosIntoZeros) {
    const TStereo<float> silence(4);
    TStereo<float> input(4), output(4, 1.0f);
    const auto in = input.pointers(), out = output.pointers();
    SScaling filter{-1.0};
    runWatched<EInput::Read>(filter, in[0], in[1], out[0], out[1], 4);
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
            SHalving fourByFour, inGroups;
            fourByFour.y1 = inGroups.y1 = inBothChannels(std::numeric_limits<double>::min());
            SCOPED_TRACE(testing::Message() << trouble << (isRight ? " right" : " left"));
            EXPECT_TRUE(halveFourByFour(fourByFour, input) == halve(inGroups, input));
            EXPECT_TRUE(sameBits(leftOf(fourByFour.y1), leftOf(inGroups.y1)));
            EXPECT_TRUE(sameBits(rightOf(fourByFour.y1), rightOf(inGroups.y1)));
        }
    }
}

TEST(GuardedRecursion, FlushesTheStateOnlyOnceItIsADenormalAsADouble) {
    const TStereo<float> silence(4);
    SHalving filter;
    filter.y1 = frameOf(0.0, std::numeric_limits<double>::min());
    EXPECT_TRUE(halveFourByFour(filter, silence) == silence);
    EXPECT_EQ(rightOf(filter.y1), 0.0) << "half of the smallest normal number is a denormal";
    filter.y1 = frameOf(0.0, 1e-100);
    EXPECT_TRUE(halveFourByFour(filter, silence) == silence);
    EXPECT_EQ(rightOf(filter.y1), 1e-100 / 16.0) << "below every float, yet no denormal";
}

TEST(GuardedRecursion, RefreshesBeforeEachGroupOf64FramesAndNotForAnEmptyBlock) {
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
