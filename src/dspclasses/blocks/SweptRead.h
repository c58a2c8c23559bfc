#pragma once

#include "dspclasses/blocks/SDelayRing.h"
#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/kernels/WideLoop.h"

/// Interpolated reads of a run that has an offset for each frame. Four frames are read at a time,
/// each lane from its own place in the ring.

/// @return the sample `offset` samples before the one that is the newest at the given frame.
inline float readSwept(const SDelayRing &ring, std::uint32_t frame, float offset) {
    const std::uint32_t distance = wholeCount(offset);
    const float *newer = ring.samples + ring.placeOf(distance, frame);
    const float fraction = offset - static_cast<float>(distance);
    return (newer[-1] - newer[0]) * fraction + newer[0];
}

/// The same for four frames from `frame` on. Each load takes a sample and its older neighbour.
inline SFloats4 readFourSwept(const SDelayRing &ring, std::uint32_t frame, const float *offsets) {
    const SFloats4 offset = loadFour(offsets);
    const SCounts4 distance = wholeParts(offset);
    const SCounts4 newest{ring.newest + frame + SCounts4::Values{0, 1, 2, 3}};
    std::uint32_t places[4];
    storeFour(places, SCounts4{(newest.values - distance.values) & ring.mask});
    const float *neighbours = ring.samples - 1;
    const SFloats4 early = loadPairs(neighbours + places[0], neighbours + places[1]);
    const SFloats4 late = loadPairs(neighbours + places[2], neighbours + places[3]);
    const SFloats4 older = firstOfPairs(early, late), newer = secondOfPairs(early, late);
    const SFloats4 fraction = offset - toFloats(distance);
    return (older - newer) * fraction + newer;
}

/// @return whether `count` frames may read at these offsets before the run writes. False if an
///         offset is a NaN, or so near or so far that a frame would read a sample of its own run.
///         The frames must then be processed one by one.
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

/// @param offsets  one per frame; canReadRunSwept must be true for them.
inline void readRunSwept(const SDelayRing &ring, const float *offsets, float *to, int count) {
    int i = 0;
    for (; i + 4 <= count; i += 4)
        storeFour(to + i, readFourSwept(ring, static_cast<std::uint32_t>(i), offsets + i));
    for (; i < count; ++i)
        to[i] = readSwept(ring, static_cast<std::uint32_t>(i), offsets[i]);
}
