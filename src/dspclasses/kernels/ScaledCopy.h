#pragma once

#include "dspclasses/kernels/FrameGroups.h"
#include "values/TRelaxed.h"

/// to[i] = from[i] * factor for one channel; the buffers must not overlap.
template <typename Sample>
void copyScaled(const Sample *__restrict from, Sample *__restrict to, int frames, Sample factor) {
#pragma GCC unroll 4  // otherwise the loop counter costs as much as the multiplication
    for (int i = 0; i < frames; ++i)
        to[i] = from[i] * factor;
}

/// The same, with a gain that another thread may set during the block.
template <typename Sample>
void copyScaled(const Sample *from, Sample *to, int frames, const TRelaxed<float> &gain) {
    forEachGroup(frames, [&](int first, int count) {
        copyScaled<Sample>(from + first, to + first, count, static_cast<Sample>(gain.load()));
    });
}
