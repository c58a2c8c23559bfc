#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// How the X server wants the pixels of an image.
struct SXcbPixelLayout {
    int bitsPerPixel = 32;  // 8, 16, 24 or 32
    int padding = 32;       // each row is a multiple of so many bits
    bool isLowByteFirst = true;
    std::uint32_t redMask = 0xFF0000, greenMask = 0x00FF00, blueMask = 0x0000FF;
};

/// Converts the pixels of surfaces for the X server.
class CXcbPixelFormat {
public:
    explicit CXcbPixelFormat(const SXcbPixelLayout &layout);

    std::size_t bytesOfRow(std::int32_t width) const;
    /// @param pixels  0xAARRGGBB; the alpha is ignored.
    /// @param row     receives bytesOfRow(width) bytes.
    void convertRow(const std::uint32_t *pixels, std::int32_t width, std::uint8_t *row) const;

private:
    using Channel = std::array<std::uint32_t, 256>;  // a value at its place in a pixel
    static Channel channelOf(std::uint32_t mask);

    std::uint32_t convert(std::uint32_t pixel) const;

    SXcbPixelLayout m_layout;
    bool m_isPlain;  // as in a surface
    Channel m_red, m_green, m_blue;
    std::uint32_t m_others;  // the bits of no channel
};
