#include "platform/linux/windowing/window/CXcbPixelFormat.h"

#include <bit>
#include <cstring>

CXcbPixelFormat::CXcbPixelFormat(const SXcbPixelLayout &layout)
    : m_layout(layout),
      m_isPlain(layout.bitsPerPixel == 32 && layout.isLowByteFirst &&
                std::endian::native == std::endian::little && layout.redMask == 0xFF0000 &&
                layout.greenMask == 0x00FF00 && layout.blueMask == 0x0000FF),
      m_red(channelOf(layout.redMask)), m_green(channelOf(layout.greenMask)),
      m_blue(channelOf(layout.blueMask)),
      // Where they are an alpha channel, the picture is opaque.
      m_others(~(layout.redMask | layout.greenMask | layout.blueMask)) {}

CXcbPixelFormat::Channel CXcbPixelFormat::channelOf(std::uint32_t mask) {
    Channel channel = {};
    if (mask == 0)
        return channel;
    const int shift = std::countr_zero(mask);
    const std::uint64_t greatest = mask >> shift;
    for (std::uint32_t value = 0; value < 256; ++value)
        channel[value] = static_cast<std::uint32_t>((value * greatest + 127) / 255) << shift;
    return channel;
}

std::size_t CXcbPixelFormat::bytesOfRow(std::int32_t width) const {
    const auto padding = static_cast<std::size_t>(m_layout.padding);
    const std::size_t bits =
        static_cast<std::size_t>(width) * static_cast<std::size_t>(m_layout.bitsPerPixel);
    return (bits + padding - 1) / padding * padding / 8;
}

void CXcbPixelFormat::convertRow(const std::uint32_t *pixels, std::int32_t width,
                                 std::uint8_t *row) const {
    if (m_isPlain) {
        std::memcpy(row, pixels, static_cast<std::size_t>(width) * sizeof *pixels);
        return;
    }
    const int bits = m_layout.bitsPerPixel;
    for (std::int32_t i = 0; i < width; ++i) {
        const std::uint32_t pixel = convert(pixels[i]);
        for (int bit = 0; bit < bits; bit += 8) {
            const int shift = m_layout.isLowByteFirst ? bit : bits - 8 - bit;
            *row++ = static_cast<std::uint8_t>(pixel >> shift);
        }
    }
}

std::uint32_t CXcbPixelFormat::convert(std::uint32_t pixel) const {
    return m_red[pixel >> 16 & 255] | m_green[pixel >> 8 & 255] | m_blue[pixel & 255] | m_others;
}
