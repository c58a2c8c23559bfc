#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

/// A picture with alpha that surfaces can draw. Its pixels are premultiplied. [gui thread]
class INativeBitmap {
public:
    virtual ~INativeBitmap() = default;
    virtual std::int32_t getWidth() const = 0;   ///< pixels, at least 1
    virtual std::int32_t getHeight() const = 0;  ///< pixels, at least 1
};

/// Decodes a PNG or JPEG file, whatever its name. The pixels of a JPEG have alpha 255. Needs as
/// much memory as the decoded picture, but none for a header that promises more than the file can
/// hold.
/// @param path  in the system's narrow encoding.
/// @return null if there is no such file, if it is not a regular file, or if it does not hold one
///         whole picture.
std::unique_ptr<INativeBitmap> decodeNativeBitmap(const std::string &path);

/// @param pixels  width * height * 4 bytes, premultiplied: blue, green, red, alpha. The first row
///                is the bottom of the picture.
/// @return null if a dimension is below 1, or if there is no memory.
std::unique_ptr<INativeBitmap> createNativeBitmap(std::int32_t width, std::int32_t height,
                                                  std::span<const std::uint8_t> pixels);
