#pragma once

#include "dspclasses/blocks/SDelayRing.h"
#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/kernels/WideLoop.h"

/// Reads of a run at an offset of its own for every frame, interpolated: four frames at a time,
/// each lane with its own place in the ring.

/// @return the sample `offset` samples back from the newest one that the given frame finds.
inline float readSwept(const SDelayRing &ring, std::uint32_t frame, float offset) {
    const std::uint32_t distance = wholeCount(offset);
    const float *newer = ring.samples + ring.placeOf(distance, frame);
    const float fraction = offset - static_cast<float>(distance);
    return (newer[-1] - newer[0]) * fraction + newer[0];
}

/// The same for four frames from `frame` on. Each load takes a sample and its older neighbour.
inline SFloats4 readFourSwept(const SDelayRing &ring, std::uint32_t frame, const float *offsets) {
    const __m128 offset = _mm_loadu_ps(offsets);
    const __m128i distance = _mm_cvttps_epi32(offset);
    const __m128 fraction = _mm_sub_ps(offset, _mm_cvtepi32_ps(distance));
    const __m128i frames = _mm_add_epi32(_mm_set1_epi32(static_cast<int>(ring.newest + frame)),
                                         _mm_setr_epi32(0, 1, 2, 3));
    alignas(16) std::uint32_t places[4];
    _mm_store_si128(reinterpret_cast<__m128i *>(places),
                    _mm_and_si128(_mm_sub_epi32(frames, distance),
                                  _mm_set1_epi32(static_cast<int>(ring.mask))));
    const auto neighbours = [&ring, &places](int first) {
        const auto at = [&ring, &places](int k) {
            return reinterpret_cast<const __m64 *>(ring.samples + places[k] - 1);
        };
        return _mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), at(first)), at(first + 1));
    };
    const __m128 early = neighbours(0), late = neighbours(2);
    const SFloats4 older{_mm_shuffle_ps(early, late, _MM_SHUFFLE(2, 0, 2, 0))};
    const SFloats4 newer{_mm_shuffle_ps(early, late, _MM_SHUFFLE(3, 1, 3, 1))};
    return (older - newer) * SFloats4{fraction} + newer;
}

/// @return whether `count` frames may read at these offsets before the run writes. False if an
///         offset is so near or so far that a frame would meet a sample of the run itself, or is a
///         NaN; the frames then go one by one.
inline bool canReadRunSwept(const SDelayRing &ring, const float *offsets, int count) {
    constexpr std::uint32_t lastWholeFloat = 1 << 24;
    if (ring.mask >= lastWholeFloat)
        return false;
    const auto nearest = static_cast<float>(count);
    const auto farthest = static_cast<float>(ring.mask) - 1.0f;
    int can = 1;
    runWide([=, &can] {
        int areAllInside = 1;
        for (int i = 0; i < count; ++i)
            areAllInside &= (offsets[i] >= nearest) & (offsets[i] <= farthest);
        can = areAllInside;
    });
    return can != 0;
}

/// @param offsets  one per frame, for which canReadRunSwept holds.
inline void readRunSwept(const SDelayRing &ring, const float *offsets, float *to, int count) {
    int i = 0;
    for (; i + 4 <= count; i += 4)
        storeFour(to + i, readFourSwept(ring, static_cast<std::uint32_t>(i), offsets + i));
    for (; i < count; ++i)
        to[i] = readSwept(ring, static_cast<std::uint32_t>(i), offsets[i]);
}
