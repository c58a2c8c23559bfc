#pragma once

#include "corvel/audio/CSoundMeter.h"
#include "corvel/plot/CCanvas.h"

#include <optional>
#include <string>

namespace Tessitor::Tool {

/// One side of a render, with its curves.
struct SPictureSide {
    const CSoundMeter &meter;
    std::optional<SLoudness> loudness;
};

struct SPictureText {
    std::string title;     // the output
    std::string subtitle;  // what was done
};

/// Draws what a render did: the waveforms and the short-term loudness before and after it, and the
/// difference over time.
///
///     title
///     waveform before
///     waveform after
///     loudness of both
///     difference
///     time
///
/// @return the bytes of the file.
std::string drawRender(const SPictureSide &before, const SPictureSide &after,
                       const SPictureText &text, const SPictureOptions &options);

}  // namespace Tessitor::Tool
