#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <sndfile.h>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// libsndfile's broadcast chunk. The coding history at its end may be this long.
struct SBroadcast {
    SF_BROADCAST_INFO info;
    char moreHistory[16384 - sizeof(info.coding_history)];
};

/// What a file says about its sound.
struct STags {
    std::map<int, std::string> texts;     // by libsndfile's numbers: title, artist ...
    std::optional<SBroadcast> broadcast;  // the chunk "bext" of WAV
    std::vector<SF_CUE_POINT> cues;
};

/// @param file  open for reading.
STags tagsOf(SNDFILE *file);

/// @return the tags of the part from `start` on: the time reference moves along, and so do the cue
///         points.
/// @param start, frames  of the part.
STags tagsOfPart(STags tags, std::int64_t start, std::int64_t frames);

/// Call before the first sample is written. What the format cannot hold is left out. The loudness
/// in the broadcast chunk is marked as unknown, since processing changes it.
/// @param file  open for writing.
void writeTags(SNDFILE *file, int format, const STags &tags);

}  // namespace Tessitor::Tool
