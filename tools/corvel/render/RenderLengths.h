#pragma once

#include "corvel/render/Render.h"

#include <cstddef>
#include <cstdint>

namespace Tessitor::Tool {

/// The longest tail, seconds.
inline constexpr double longestTail = 3600.0;

/// @return the frames that as much time takes at another rate, rounded to the nearest.
std::int64_t framesAtRate(std::int64_t frames, int fromRate, int toRate);

/// @return the frames after the end of the input; if the tail ends by itself, the most it can have.
std::int64_t tailFrames(const SRenderOptions &options, int sampleRate);

/// @return the frames of silence that end a tail: more than lie between two echoes of the strip's
///         delay, which are up to 1.5 seconds or a beat apart.
std::size_t silenceFrames(const SRenderOptions &options, int sampleRate);

}  // namespace Tessitor::Tool
