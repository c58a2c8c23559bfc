#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// File formats as libsndfile numbers them: container | sample type | byte order.

/// What --format asks for.
struct SFormatRequest {
    int container = 0;   // 0: not asked for
    int sampleType = 0;  // 0: not asked for
};

/// @param text  "wav", "aiff", "flac" or "ogg", and ":" and a sample type if one is wanted.
/// @throws CCallError if there is no such container or type, or they do not go together.
SFormatRequest formatFromText(std::string_view text);

/// What to write. The container is the one asked for, else the one of OUT's extension, else that of
/// the input; the sample type is the one asked for, else that of the input, else the nearest that
/// the container has and that loses the least.
int outputFormat(int inputFormat, const SFormatRequest &request, const std::filesystem::path &out);

/// @return false if the extension is that of another container, or of none.
bool isExtensionOf(int container, const std::filesystem::path &file);

/// WAV files end at 4 GiB: a longer one becomes its 64-bit form.
/// @throws CJobError if the file would be too long for its container.
int formatForLength(int format, std::int64_t frames, int channels,
                    const std::filesystem::path &out);

/// @return false for containers that this program does not read.
bool isKnownContainer(int format);

/// @return ".wav", ".aiff", ".flac" or ".ogg".
std::string extensionOf(int format);

/// For people: "WAV, 24-bit".
std::string describeFormat(int format);

/// @return bits of the integers that a file of this format is written from, 0 if it is written from
///         floating-point samples.
int integerBits(int format);

}  // namespace Tessitor::Tool
