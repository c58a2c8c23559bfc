#pragma once

#include <sndfile.h>

namespace Tessitor::Tool {

/// The highest rate that Opus supports, Hz. Other rates are converted to it.
inline constexpr int fullOpusRate = 48000;

inline bool isOpus(int format) {
    return (format & SF_FORMAT_SUBMASK) == SF_FORMAT_OPUS;
}

inline bool isOpusRate(int sampleRate) {
    for (const int rate : {8000, 12000, 16000, 24000, fullOpusRate})
        if (rate == sampleRate)
            return true;
    return false;
}

}  // namespace Tessitor::Tool
