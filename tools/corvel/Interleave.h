#pragma once

#include <cstddef>

namespace Tessitor::Tool {

/// From the order of files, frame by frame, to that of effects, channel by channel.
template <typename Sample>
void deinterleave(const Sample *stereo, std::size_t frames, Sample *left, Sample *right) {
    for (std::size_t i = 0; i < frames; ++i) {
        left[i] = stereo[2 * i];
        right[i] = stereo[2 * i + 1];
    }
}

/// And back.
template <typename Sample>
void interleave(const Sample *left, const Sample *right, std::size_t frames, Sample *stereo) {
    for (std::size_t i = 0; i < frames; ++i) {
        stereo[2 * i] = left[i];
        stereo[2 * i + 1] = right[i];
    }
}

}  // namespace Tessitor::Tool
