#pragma once

#include <cstddef>

namespace Tessitor::Tool {

/// Splits interleaved frames, as in files, into two channels, as for effects.
template <typename Sample>
void deinterleave(const Sample *stereo, std::size_t frames, Sample *left, Sample *right) {
    for (std::size_t i = 0; i < frames; ++i) {
        left[i] = stereo[2 * i];
        right[i] = stereo[2 * i + 1];
    }
}

/// Joins two channels into interleaved frames.
template <typename Sample>
void interleave(const Sample *left, const Sample *right, std::size_t frames, Sample *stereo) {
    for (std::size_t i = 0; i < frames; ++i) {
        stereo[2 * i] = left[i];
        stereo[2 * i + 1] = right[i];
    }
}

}  // namespace Tessitor::Tool
