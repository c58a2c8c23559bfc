#pragma once

#include "dspclasses/kernels/FrameGroups.h"
#include "dspclasses/kernels/WideLoop.h"
#include "values/TRelaxed.h"

/// to[i] = from[i] * factor for one channel; the buffers must not overlap.
template <typename Sample>
void copyScaled(const Sample *__restrict from, Sample *__restrict to, int frames, Sample factor) {
#pragma GCC unroll 8  // otherwise the loop counter costs as much as the multiplication
    for (int i = 0; i < frames; ++i)
        to[i] = from[i] * factor;
}

/// The same for both channels, with gains that another thread may set during the block.
template <typename Sample>
void copyScaled(const Sample *const *in, Sample *const *out, int frames,
                const TRelaxed<float> &leftGain, const TRelaxed<float> &rightGain) {
    const Sample *inL = in[0], *inR = in[1];
    Sample *outL = out[0], *outR = out[1];
    runWide([=, &leftGain, &rightGain] {
        forEachVectorGroup(frames, [=, &leftGain, &rightGain](int first, int count) {
            const Sample left = leftGain.load(), right = rightGain.load();
            copyScaled<Sample>(inL + first, outL + first, count, left);
            copyScaled<Sample>(inR + first, outR + first, count, right);
        });
    });
}
