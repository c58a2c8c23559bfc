#pragma once

#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// How samples without a header are stored. The argument of --raw.
struct SRawFormat {
    int sampleRate;  // Hz
    int channels;    // 1 or 2
    int sampleType;  // of libsndfile; always little-endian
};

/// @param text  RATE:CHANNELS:FORMAT; the format is s16, s24, s32, f32 or f64, optionally followed
///              by "le".
/// @throws CCallError if it is not.
SRawFormat rawFormatFromText(std::string_view text);

}  // namespace Tessitor::Tool
