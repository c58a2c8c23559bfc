#pragma once

#include <cstdint>

/// @return a product of two channels divided by 255 and rounded, for values up to 255 * 255.
constexpr std::uint8_t dividedChannel(int product) {
    // In 16 bits, so that a register of 128 bits holds eight channels.
    const auto x = static_cast<std::uint16_t>(product + 127);
    return static_cast<std::uint8_t>(static_cast<std::uint16_t>(x + 1 + (x >> 8)) >> 8);
}

/// @return the sum of two channels, at most 255, in 8 bits throughout.
constexpr std::uint8_t cutSum(std::uint8_t a, std::uint8_t b) {
    const auto sum = static_cast<std::uint8_t>(a + b);
    return sum < a ? 255 : sum;
}

// The same for two channels of a pixel at once, each in the low byte of 16 bits

/// @return each of the two divided by 255 and rounded, for values up to 255 * 255.
constexpr std::uint32_t dividedBy255(std::uint32_t twoChannels) {
    // Rounds first; the rest is the exact division for all 16-bit values below 65535.
    const std::uint32_t x = twoChannels + 0x007f007fu;
    return ((x + 0x00010001u + ((x >> 8) & 0x00ff00ffu)) >> 8) & 0x00ff00ffu;
}

/// @return each of the two, at most 255.
constexpr std::uint32_t cut(std::uint32_t twoChannels) {
    const std::uint32_t tooHigh = (twoChannels >> 8) & 0x00010001u;
    return (twoChannels | ((tooHigh << 8) - tooHigh)) & 0x00ff00ffu;
}

/// All four channels times a factor from 0 to 255, divided by 255.
constexpr std::uint32_t scaledPixel(std::uint32_t pixel, std::uint32_t factor) {
    return dividedBy255((pixel & 0x00ff00ffu) * factor) |
           dividedBy255(((pixel >> 8) & 0x00ff00ffu) * factor) << 8;
}

/// A premultiplied pixel drawn over another. Channels above their own alpha are cut at 255.
constexpr std::uint32_t blendedPixel(std::uint32_t over, std::uint32_t under) {
    const std::uint32_t rest = scaledPixel(under, 255 - (over >> 24));
    return cut((over & 0x00ff00ffu) + (rest & 0x00ff00ffu)) |
           cut(((over >> 8) & 0x00ff00ffu) + ((rest >> 8) & 0x00ff00ffu)) << 8;
}

/// The mean of two pixels, one weighted by a factor from 0 to 255 and the other by the rest.
constexpr std::uint32_t mixedPixel(std::uint32_t over, std::uint32_t under, std::uint32_t factor) {
    const std::uint32_t rest = 255 - factor;
    return dividedBy255((over & 0x00ff00ffu) * factor + (under & 0x00ff00ffu) * rest) |
           dividedBy255(((over >> 8) & 0x00ff00ffu) * factor + ((under >> 8) & 0x00ff00ffu) * rest)
               << 8;
}
