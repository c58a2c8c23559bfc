#include "corvel/render/RenderLengths.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

std::int64_t framesAtRate(std::int64_t frames, int fromRate, int toRate) {
    if (fromRate == toRate)
        return frames;
    return std::llround(static_cast<double>(frames) * toRate / fromRate);
}

std::int64_t tailFrames(const SRenderOptions &options, int sampleRate) {
    return std::llround((options.tailAuto ? longestTail : options.tailSeconds) * sampleRate);
}

std::size_t silenceFrames(const SRenderOptions &options, int sampleRate) {
    const double seconds = 2.0 + 60.0 / options.tempo;
    // At a lower rate the strip's times are longer, but have no more frames.
    return static_cast<std::size_t>(std::llround(seconds * std::max(sampleRate, stripRate)));
}

}  // namespace Tessitor::Tool
