#pragma once

#include "dspclasses/FrameGroups.h"
#include "dspclasses/TRelaxed.h"

/// to = from * gain over one channel; the two must not overlap. [audio thread]
template <typename Sample>
void copyScaled(const Sample *__restrict from, Sample *__restrict to, int frames,
                const TRelaxed<float> &gain) {
    forEachGroup(frames, [from, to, &gain](int first, int count) {
        const Sample factor = gain.load();
        for (int i = first; i < first + count; ++i)
            to[i] = from[i] * factor;
    });
}
