#include "dspclasses/blocks/Followers.h"

#include "dspclasses/support/Signals.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

template <typename Sample>
class SFollowerPrecision : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(SFollowerPrecision, Precisions);

namespace {

bool sameOrBothNan(float a, float b) {
    return sameBits(a, b) || (std::isnan(a) && std::isnan(b));
}

/// Compares one call for four frames with four calls. All NaNs count as equal.
template <typename Sample>
void expectFourLikeSingleFrames(const SFollower &follower, float state,
                                const TFour<Sample> &input) {
    float fourState = state;
    const Floats4 four = followFour(follower, fourState, input);
    for (int i = 0; i < 4; ++i) {
        state = follower.next(state, input.values[i]);
        ASSERT_TRUE(sameOrBothNan(four[i], state))
            << "frame " << i << ": " << four[i] << ' ' << state;
    }
    ASSERT_TRUE(sameOrBothNan(fourState, state));
}

}  // namespace

TYPED_TEST(SFollowerPrecision, FallsToOneOverEInTheReleaseTimeAndRisesInTheAttackTime) {
    constexpr float rate = 44100.0f;
    const SFollower follower{smoothingCoefficient(10.0f, rate), smoothingCoefficient(100.0f, rate)};
    float rising = 0.0f, falling = 1.0f;
    for (int i = 0; i < 441; ++i)
        rising = follower.next(rising, TypeParam{1});
    for (int i = 0; i < 4410; ++i)
        falling = follower.next(falling, TypeParam{0});
    EXPECT_NEAR(rising, 1.0 - std::exp(-1.0), 1e-3);
    EXPECT_NEAR(falling, std::exp(-1.0), 1e-3);
}

TYPED_TEST(SFollowerPrecision, FourFramesEqualFourSingleOnesForAnyCoefficients) {
    for (std::uint64_t seed = 1; seed < 20000; ++seed) {
        SCOPED_TRACE(seed);
        CRandom random(seed);
        const auto coefficient = [&random] {
            return random.chance(0.1) ? -std::numeric_limits<float>::infinity()
                                      : static_cast<float>(random.real(-2.0, 1.5));
        };
        const auto level = [&random] {
            return random.chance(0.3) ? 1.0 : random.chance(0.2) ? 0.0 : random.real(0.0, 1.5);
        };
        const SFollower follower{coefficient(), coefficient()};
        TFour<TypeParam> input{};
        for (int i = 0; i < 4; ++i)
            input.values[i] = static_cast<TypeParam>(level());
        expectFourLikeSingleFrames(follower, static_cast<float>(level()), input);
        ASSERT_FALSE(this->HasFailure());
    }
}

TEST(SFollower, TwoSideBySideEqualTwoAloneForAnyCoefficients) {
    for (std::uint64_t seed = 1; seed < 20000; ++seed) {
        SCOPED_TRACE(seed);
        CRandom random(seed);
        const auto draw = [&random](double low, double high) {
            return static_cast<float>(random.real(low, high));
        };
        const auto coefficient = [&] {
            return random.chance(0.1) ? -std::numeric_limits<float>::infinity() : draw(-2.0, 1.5);
        };
        const SFollower follower{coefficient(), coefficient()};
        std::array<float, 2> states{draw(0.0, 1.5), draw(0.0, 1.5)};
        std::array<SFloats4, 2> inputs{};
        for (SFloats4 &input : inputs)
            for (int i = 0; i < 4; ++i)
                input.values[i] = random.chance(0.2) ? states[0] : draw(0.0, 1.5);
        std::array<float, 2> alone = states;
        const std::array<Floats4, 2> twice = followFourTwice(follower, states, inputs);
        for (std::size_t channel = 0; channel < 2; ++channel) {
            const Floats4 expected = followFour(follower, alone[channel], inputs[channel]);
            for (int i = 0; i < 4; ++i)
                ASSERT_TRUE(sameOrBothNan(twice[channel][i], expected[i])) << "frame " << i;
            ASSERT_TRUE(sameOrBothNan(states[channel], alone[channel]));
        }
    }
}

TEST(PeakFollower, HasTheCoefficientsOfTwoAndFifteenMilliseconds) {
    EXPECT_EQ(peakFollower.attackCoef, 0.9886621f);
    EXPECT_EQ(peakFollower.releaseCoef, 0.9984883f);
}
