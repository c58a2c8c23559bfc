#pragma once

#include "dspclasses/blocks/Followers.h"

#include <cmath>

/// The detector's slower follower: it smooths the excess over the threshold.

/// Added before smoothing and subtracted after it. An excess that dies away then comes to rest at
/// -1e-20 and never becomes a denormal.
inline constexpr float smoothingBias = 1e-20f;

/// From this magnitude up, adding or subtracting the bias changes no bit of a float.
inline constexpr float leastUnbiased = 0x1p-40f;

/// @return the smoothed excess one frame later.
template <typename Sample>
float smoothExcess(const SFollower &smoother, float smoothedDb, Sample excessDb) {
    return smoother.next(smoothedDb + smoothingBias, excessDb) - smoothingBias;
}

/// The same for an excess of 0 that is not above the smoothed one: only the release applies.
inline float decayExcess(const SFollower &smoother, float smoothedDb) {
    return (smoothedDb + smoothingBias) * smoother.releaseCoef - smoothingBias;
}

/// Not inlined, to keep the slow case out of the loop.
template <typename Sample>
[[gnu::noinline]] Floats4 smoothFourWithBias(const SFollower &smoother, float smoothedDb,
                                             const TFour<Sample> &excessesDb) {
    return recurseFour(smoothedDb, excessesDb, [&smoother](float before, Sample excessDb) {
        return smoothExcess(smoother, before, excessDb);
    });
}

/// smoothExcess for four frames, with the same bits. Two shorter recursions cover nearly all
/// frames: below the threshold a decay, above it a follower without the bias.
/// @param smoothedDb  of the frame before; updated to that of the fourth.
/// @param areAbove    the frames that are above the threshold; the excess of the others is 0.
template <typename Sample>
[[gnu::always_inline]] inline Floats4 smoothFour(const SFollower &smoother, float &smoothedDb,
                                                 const TFour<Sample> &excessesDb,
                                                 const Mask4 &areAbove) {
    const float before = smoothedDb;
    if (!isAnySet(areAbove) && before >= -smoothingBias && smoother.releaseCoef >= 0.0f) {
        return recurseFour(smoothedDb, excessesDb, [&smoother](float decaying, Sample) {
            return decayExcess(smoother, decaying);
        });
    }
    if (std::abs(before) >= leastUnbiased) [[likely]] {
        const Floats4 smoothed = followFour(smoother, smoothedDb, excessesDb);
        const Floats4 magnitudes = magnitude(SFloats4{smoothed}).values;
        if (!isAnySet(magnitudes < leastUnbiased)) [[likely]]
            return smoothed;
    }
    const Floats4 smoothed = smoothFourWithBias(smoother, before, excessesDb);
    smoothedDb = smoothed[3];
    return smoothed;
}

/// smoothFour for two channels, side by side if that is possible.
[[gnu::always_inline]] inline std::array<Floats4, 2>
smoothFourTwice(const SFollower &smoother, std::array<float, 2> &smoothedDb,
                const std::array<SFloats4, 2> &excessesDb, const std::array<Mask4, 2> &areAbove) {
    if (std::abs(smoothedDb[0]) >= leastUnbiased && std::abs(smoothedDb[1]) >= leastUnbiased) {
        std::array<float, 2> states = smoothedDb;
        const std::array<Floats4, 2> smoothed = followFourTwice(smoother, states, excessesDb);
        // Two comparisons: the smaller of two values would hide one of them beside a NaN.
        const SFloats4 first = magnitude(SFloats4{smoothed[0]});
        const SFloats4 second = magnitude(SFloats4{smoothed[1]});
        const Mask4 areTiny = (first.values < leastUnbiased) | (second.values < leastUnbiased);
        if (!isAnySet(areTiny)) [[likely]] {
            smoothedDb = states;
            return smoothed;
        }
    }
    return {smoothFour(smoother, smoothedDb[0], excessesDb[0], areAbove[0]),
            smoothFour(smoother, smoothedDb[1], excessesDb[1], areAbove[1])};
}
