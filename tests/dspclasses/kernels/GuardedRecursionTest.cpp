#include "dspclasses/kernels/GuardedRecursion.h"

#include "dspclasses/kernels/HalvingFilter.h"

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

}  // namespace

TEST(GuardedRecursion, GuardsAndWatchesEachKindOfValueAsInItsTable) {
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
