#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// File formats are those of libsndfile: container | sample type | byte order.

/// The argument of --format.
struct SFormatRequest {
    int container = 0;   // 0: not given
    int sampleType = 0;  // 0: not given
};

/// @param text  "wav", "aiff", "flac" or "ogg", optionally followed by ":" and a sample type.
/// @throws CCallError if there is no such container, or it does not support the type.
SFormatRequest formatFromText(std::string_view text);

/// @return every text that formatFromText() accepts: "wav", "wav:16" and so on.
std::vector<std::string> formatTexts();

/// @return the format to write. The container is the requested one, otherwise that of the extension
///         of `out`, otherwise that of the input. The sample type is the requested one, otherwise
///         that of the input, otherwise the closest that the container supports. An input whose
///         container is only read becomes WAV.
int outputFormat(int inputFormat, const SFormatRequest &request, const std::filesystem::path &out);

/// @return false if the extension belongs to another container or to none.
bool isExtensionOf(int container, const std::filesystem::path &file);

/// @return what is wrong with the name of an output: an ending that belongs to no format, unless a
///         format is requested, or to another one than the requested. Empty if nothing is.
std::string problemOfName(const std::filesystem::path &out, const SFormatRequest &request);

/// Changes WAV to its 64-bit form if the file would exceed 4 GiB.
/// @throws CJobError if the file would be too long for its container.
int formatForLength(int format, std::int64_t frames, int channels,
                    const std::filesystem::path &out);

/// @return the format for a file whose length is not known: for WAV its 64-bit form.
int formatForUnknownLength(int format);

/// @return false for containers that this program does not read.
bool isKnownContainer(int format);

bool isWav(int format);  ///< in all its variants

/// @return ".wav", ".aiff", ".flac" or ".ogg", for a container that is written.
std::string extensionOf(int format);

/// @return a readable text: "WAV, 24-bit".
std::string describeFormat(int format);

/// @return the bits per sample if a file of this format is written from integers; 0 if it is
///         written from floating-point samples.
int integerBits(int format);

/// @return the size of a sample that is not compressed.
int bytesPerSample(int format);

}  // namespace Tessitor::Tool
