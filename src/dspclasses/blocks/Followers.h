#pragma once

#include "dspclasses/kernels/Lanes.h"

#include <algorithm>

/// Moves towards its input: from frame to frame it keeps a share of its distance, the share of the
/// attack where the input is above it, else that of the release.
struct SFollower {
    float attackCoef;
    float releaseCoef;

    /// One frame, in the precision of the input.
    template <typename Sample>
    float next(float state, Sample input) const {
        const Sample coef{input > Sample{state} ? attackCoef : releaseCoef};
        return static_cast<float>((Sample{state} - input) * coef + input);
    }
};

/// The follower of peaks in the gate, the compressor and the de-esser, at 44100 Hz.
inline constexpr float peakAttackCoef = 0.9886621f;   // 1 - 1 / (2 ms * 44.1)
inline constexpr float peakReleaseCoef = 0.9984883f;  // 1 - 1 / (15 ms * 44.1)
inline constexpr SFollower peakFollower{peakAttackCoef, peakReleaseCoef};

/// Four frames of a recursion.
/// @param state  the result of the frame before; becomes that of the fourth.
/// @param next   (result of the frame before, input) -> result.
template <typename Sample, typename Next>
[[gnu::always_inline]] inline Floats4 recurFour(float &state, const TFour<Sample> &input,
                                                Next next) {
    const auto &in = input.values;
    const float first = next(state, in[0]), second = next(first, in[1]);
    const float third = next(second, in[2]), fourth = next(third, in[3]);
    state = fourth;
    return Floats4{first, second, third, fourth};
}

/// Four frames of a follower, without a comparison that every next frame would have to wait for.
/// The attack counts just where the distance is below zero. If it is the smaller share, its product
/// is the greater of the two there, and the release's is elsewhere: always the greater one counts.
/// If it is the greater share, always the lesser one does.
/// @param state  of the frame before; becomes that of the fourth.
template <typename Sample>
[[gnu::always_inline]] inline Floats4 followFour(const SFollower &follower, float &state,
                                                 const TFour<Sample> &input) {
    const Sample attack{follower.attackCoef}, release{follower.releaseCoef};
    // The release first: it is what counts if the other product is a NaN, 0 times an infinite
    // coefficient.
    if (attack < release) {
        return recurFour(state, input, [=](float before, Sample level) {
            const Sample distance = Sample{before} - level;
            return static_cast<float>(std::max(distance * release, distance * attack) + level);
        });
    }
    return recurFour(state, input, [=](float before, Sample level) {
        const Sample distance = Sample{before} - level;
        return static_cast<float>(std::min(distance * release, distance * attack) + level);
    });
}
