#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace Tessitor::Tool {

/// Where the sound of a WAV, RF64, AIFF, W64, CAF or AU file is, and how long the header says it
/// is.
struct SSoundChunk {
    std::uint64_t sound;                    // offset of the first byte
    std::uint64_t bytesThere;               // from there to the end of the file
    std::optional<std::uint64_t> promised;  // bytes; none if the writer did not know the length
    std::uint64_t field;                    // offset of the length in the header
    int fieldBytes;                         // 4 or 8
    bool bigEndian;
};

/// @return none for other kinds of file and for a file without sound.
std::optional<SSoundChunk> findSoundChunk(const std::filesystem::path &file);

/// @return true if a length in a header only means "unknown", as 0 does.
bool isPlaceholder(std::uint64_t length);

/// libsndfile does not notice when most of these are cut short.
/// @return how many bytes of sound are missing at the end of the file, going by the length in its
///         header. 0 for a complete file and for one whose writer did not know the length.
std::uint64_t bytesMissing(const SSoundChunk &chunk);

/// @return the bytes of the header's length field for the sound that is there; none if the field is
///         too short for that length.
std::optional<std::string> correctedField(const SSoundChunk &chunk);

}  // namespace Tessitor::Tool
