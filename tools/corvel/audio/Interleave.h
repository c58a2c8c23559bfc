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

/// Mixes two channels into one, each at half its level, so that nothing clips.
template <typename Sample>
void mixDown(const Sample *left, const Sample *right, std::size_t frames, Sample *mono) {
    for (std::size_t i = 0; i < frames; ++i)
        mono[i] = Sample(0.5) * (left[i] + right[i]);
}

}  // namespace Tessitor::Tool
