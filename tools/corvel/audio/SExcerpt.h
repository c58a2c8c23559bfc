#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace Tessitor::Tool {

/// The part of an input that is rendered.
struct SExcerpt {
    double startSeconds = 0.0;
    std::optional<double> lengthSeconds;  // until the end of the input if there is none

    /// @return frames, rounded to the nearest.
    std::int64_t startFrame(int sampleRate) const {
        return std::llround(startSeconds * sampleRate);
    }
    std::int64_t frames(int sampleRate) const {
        return lengthSeconds ? std::llround(*lengthSeconds * sampleRate)
                             : std::numeric_limits<std::int64_t>::max();
    }
};

}  // namespace Tessitor::Tool
