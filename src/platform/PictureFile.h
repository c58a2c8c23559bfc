#pragma once

#include <cstdint>
#include <optional>
#include <string>

enum class EPictureFormat { PNG, JPEG };

/// Looks through a PNG or JPEG file, whatever its name, without decoding it. So a header that
/// promises a large picture costs nothing unless the file can hold one. A file that passes may
/// still turn out to be damaged when it is decoded. [any thread]
///
/// The picture must be whole, from its signature to its end mark. Both dimensions must lie between
/// 1 and 32767. A JPEG must be of a kind that every decoder reads: 8 bits per sample, Huffman
/// codes, at most 100 scans.
/// @param path  in the system's narrow encoding.
/// @return nothing if there is no such picture, if the file cannot be read, or if it is not a
///         regular file. A pipe or device is not opened.
std::optional<EPictureFormat> pictureFormat(const std::string &path);

struct SPictureSize {
    std::int32_t width, height;  ///< pixels, 1 to 32767
    bool operator==(const SPictureSize &) const = default;
};

/// Reads only the start of a PNG file, so the rest may be damaged. [any thread]
/// @param path  in the system's narrow encoding.
/// @return nothing if it is not a regular file with the header of a PNG picture.
std::optional<SPictureSize> pngSize(const std::string &path);
