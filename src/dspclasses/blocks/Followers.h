#pragma once

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/kernels/Lanes.h"

#include <algorithm>
#include <array>

/// One-pole smoother with one coefficient for a rising input and one for a falling input:
///
///     c = input > state ? attackCoef : releaseCoef
///     state = (state - input) * c + input
struct SFollower {
    float attackCoef;   // share of the distance to the input that is left after one frame
    float releaseCoef;  // the same while falling

    /// @return the state one frame later, computed in the precision of the input and stored as a
    ///         float.
    template <typename Sample>
    float next(float state, Sample input) const {
        const Sample coef{input > Sample{state} ? attackCoef : releaseCoef};
        return static_cast<float>((Sample{state} - input) * coef + input);
    }
};

/// The peak follower of the gate, the compressor and the de-esser: 2 ms and 15 ms at 44.1 kHz.
inline constexpr SFollower peakFollower{smoothingCoefficient(2.0f, 44100.0f),
                                        smoothingCoefficient(15.0f, 44100.0f)};

/// Runs a recursion over four frames.
/// @param state  of the frame before; updated to that of the fourth.
/// @param next   (state of the frame before, input) -> state.
template <typename Sample, typename Next>
[[gnu::always_inline]] inline Floats4 recurseFour(float &state, const TFour<Sample> &input,
                                                  Next next) {
    const auto &in = input.values;
    const float first = next(state, in[0]), second = next(first, in[1]);
    const float third = next(second, in[2]), fourth = next(third, in[3]);
    state = fourth;
    return Floats4{first, second, third, fourth};
}

/// SFollower::next for four frames, with the same bits. Comparing state and input first would
/// lengthen the chain of operations that leads from one frame to the next. Instead both products
/// are formed, and their maximum or minimum is the right one. With d = state - input:
///
///     d < 0  (attack)    d * attackCoef > d * releaseCoef  if attackCoef < releaseCoef
///     d > 0  (release)   d * releaseCoef > d * attackCoef  if attackCoef < releaseCoef
///
/// So for attackCoef < releaseCoef the larger product is always the one wanted. Otherwise both
/// inequalities turn round and the smaller one is wanted.
/// @param state  of the frame before; updated to that of the fourth.
template <typename Sample>
[[gnu::always_inline]] inline Floats4 followFour(const SFollower &follower, float &state,
                                                 const TFour<Sample> &input) {
    const Sample attack{follower.attackCoef}, release{follower.releaseCoef};
    // The release goes first: std::max and std::min return their first argument if the second is
    // NaN, as it is for d = 0 and an infinite attackCoef.
    if (attack < release) {
        return recurseFour(state, input, [=](float before, Sample level) {
            const Sample distance = Sample{before} - level;
            return static_cast<float>(std::max(distance * release, distance * attack) + level);
        });
    }
    return recurseFour(state, input, [=](float before, Sample level) {
        const Sample distance = Sample{before} - level;
        return static_cast<float>(std::min(distance * release, distance * attack) + level);
    });
}

/// The same for two followers with the same coefficients, side by side in the lanes of a register.
[[gnu::always_inline]] inline std::array<Floats4, 2>
followFourTwice(const SFollower &follower, std::array<float, 2> &states,
                const std::array<SFloats4, 2> &inputs) {
    const SFloats4 attack{splat(follower.attackCoef)}, release{splat(follower.releaseCoef)};
    const bool takesLarger = follower.attackCoef < follower.releaseCoef;
    // Lanes 2 and 3 of the states are not used.
    const auto next = [&](const SFloats4 &before, const SFloats4 &levels) {
        const SFloats4 distance = before - levels;
        const SFloats4 attacked = distance * attack, released = distance * release;
        return (takesLarger ? larger(attacked, released) : smaller(attacked, released)) + levels;
    };
    const SFloats4 early = interleavedLow(inputs[0], inputs[1]);
    const SFloats4 late = interleavedHigh(inputs[0], inputs[1]);
    const SFloats4 before{Floats4{states[0], states[1], states[0], states[1]}};
    const SFloats4 first = next(before, early), second = next(first, upperHalves(early, early));
    const SFloats4 third = next(second, late), fourth = next(third, upperHalves(late, late));
    states = {fourth.values[0], fourth.values[1]};
    const SFloats4 firstTwo = interleavedLow(first, second),
                   lastTwo = interleavedLow(third, fourth);
    return {lowerHalves(firstTwo, lastTwo).values, upperHalves(firstTwo, lastTwo).values};
}
