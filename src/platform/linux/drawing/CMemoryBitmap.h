#pragma once

#include "platform/INativeBitmap.h"

#include <vector>

/// A picture in memory. A pixel is 0xAARRGGBB, premultiplied; the first row is the top.
class CMemoryBitmap : public INativeBitmap {
public:
    /// @param pixels  width * height of them.
    CMemoryBitmap(std::int32_t width, std::int32_t height, std::vector<std::uint32_t> pixels)
        : m_width(width), m_height(height), m_pixels(std::move(pixels)) {}
    std::int32_t getWidth() const override { return m_width; }
    std::int32_t getHeight() const override { return m_height; }
    const std::vector<std::uint32_t> &getPixels() const { return m_pixels; }

private:
    std::int32_t m_width, m_height;
    std::vector<std::uint32_t> m_pixels;
};
