#pragma once

#include "platform/INativeSurface.h"

#include <optional>
#include <string>
#include <vector>

/// A picture without alpha, to compare.
struct SPicture {
    int width = 0, height = 0;
    std::vector<SNativeColour> pixels;  // row by row, from the top

    SPicture(int theWidth, int theHeight)
        : width(theWidth), height(theHeight),
          pixels(static_cast<std::size_t>(theWidth) * static_cast<std::size_t>(theHeight)) {}
    SNativeColour &at(int x, int y) { return pixels[index(x, y)]; }
    const SNativeColour &at(int x, int y) const { return pixels[index(x, y)]; }

private:
    std::size_t index(int x, int y) const { return static_cast<std::size_t>(y * width + x); }
};

/// Reads the pixels of a surface.
SPicture pictureOf(const INativeSurface &surface);

/// @return nothing if the file cannot be decoded.
std::optional<SPicture> readPicture(const std::string &path);

/// Writes a PNG file, uncompressed.
/// @return false if the file cannot be written.
bool writePicture(const std::string &path, const SPicture &picture);
