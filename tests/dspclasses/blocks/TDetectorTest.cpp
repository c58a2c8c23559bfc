#include "dspclasses/blocks/TDetector.h"

#include "dspclasses/blocks/PlainDetector.h"
#include "dspclasses/support/Signals.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

constexpr SGainLaw anyLaw{-0.5f, 0.0f, 1.0f};

/// Runs a block of levels through the detector and its plain version and compares the states. No
/// field is flushed by a neighbour.
template <typename Sample>
void expectSameState(const SPlainDetector &plain, SDetectorState &state,
                     const std::vector<Sample> &levels) {
    float peak = state.peak, smoothedExcessDb = state.smoothedExcessDb;
    const float neighbour = 1.0f;  // flushes nothing
    bool isAbove = false;
    for (const Sample level : levels) {
        if constexpr (sizeof(Sample) == 4)
            plain.follow(peak, level);
        else
            plain.follow(peak, neighbour, level);
        isAbove = plain.isAbove(peak);
        if constexpr (sizeof(Sample) == 4)
            plain.smooth(smoothedExcessDb, isAbove, level);
        else
            plain.smooth(smoothedExcessDb, neighbour, isAbove, level);
    }

    const bool isActive = TDetector<Sample, SNarrowLanes>::run(
        state, SFlushedFields{}, static_cast<int>(levels.size()),
        [&plain] {
            return SDetectorSettings{plain.thresholdDb,
                                     plain.thresholdLinear,
                                     {plain.attackCoef, plain.releaseCoef},
                                     anyLaw};
        },
        [&levels](const SStep &step) { return step.load(levels.data()); },
        CGainsByLaw<SNarrowLanes>(), [](const SStep &, const Floats4 &) {});
    EXPECT_TRUE(sameBits(state.peak, peak)) << state.peak << ' ' << peak;
    EXPECT_TRUE(sameBits(state.smoothedExcessDb, smoothedExcessDb))
        << state.smoothedExcessDb << ' ' << smoothedExcessDb;
    EXPECT_EQ(isActive, isAbove || smoothedExcessDb > 0.01f);
}

/// Levels around a threshold of 0 dB, where the excess is close to 0 with either sign, or 0.
template <typename Sample>
std::vector<Sample> levelsAboutOne(CRandom &random, int frames) {
    std::vector<Sample> levels;
    for (int i = 0; i < frames; ++i)
        levels.push_back(random.chance(0.6)   ? Sample{1}
                         : random.chance(0.2) ? Sample{0}
                                              : static_cast<Sample>(random.real(0.0, 1.3)));
    return levels;
}

template <typename Sample>
class TDetectorState : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(TDetectorState, Precisions);

}  // namespace

TYPED_TEST(TDetectorState, EqualsThePlainVersionForExcessesOfAnySize) {
    for (std::uint64_t seed = 1; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        CRandom random(seed);
        const auto coefficient = [&random] {
            return static_cast<float>(1.0 - 1.0 / random.real(20.0, 4000.0));
        };
        SPlainDetector plain{.attackCoef = coefficient(), .releaseCoef = coefficient()};
        plain.setThreshold(0.0f);
        const double tiny = std::pow(10.0, random.real(-40.0, -2.0));
        SDetectorState state{.peak = static_cast<float>(random.real(0.0, 1.5)),
                             .smoothedExcessDb =
                                 static_cast<float>(random.chance(0.5) ? tiny : -tiny)};
        for (int block = 0; block < 3; ++block)
            expectSameState(plain, state, levelsAboutOne<TypeParam>(random, random.whole(1, 40)));
        ASSERT_FALSE(this->HasFailure());
    }
}

TYPED_TEST(TDetectorState, EqualsThePlainVersionNearTheSmallestNormalPeak) {
    constexpr double least{std::numeric_limits<float>::min()};
    const SPlainDetector plain{.attackCoef = 0.9f, .releaseCoef = 0.9f};
    for (std::uint64_t seed = 1; seed < 20000; ++seed) {
        SCOPED_TRACE(seed);
        CRandom random(seed);
        SDetectorState state{.peak = static_cast<float>(random.real(0.9, 4.5) * least),
                             .smoothedExcessDb = 0.0f};
        std::vector<TypeParam> levels;
        for (int i = random.whole(1, 12); i > 0; --i)
            levels.push_back(random.chance(0.5)
                                 ? TypeParam{0}
                                 : static_cast<TypeParam>(random.real(0.0, 3.0) * least));
        expectSameState(plain, state, levels);
        ASSERT_FALSE(this->HasFailure());
    }
}

TYPED_TEST(TDetectorState, RestsWithoutDenormals) {
    SPlainDetector plain{.attackCoef = 0.9f, .releaseCoef = 0.9f};
    plain.setThreshold(0.0f);
    SDetectorState state{.peak = 2.0f, .smoothedExcessDb = 5.0f};
    expectSameState(plain, state, std::vector<TypeParam>(80000, TypeParam{0}));
    EXPECT_FLOAT_EQ(state.smoothedExcessDb, -1e-20f);
    if (sizeof(TypeParam) == 4) {
        EXPECT_EQ(state.peak, 0.0f);
    }
}
