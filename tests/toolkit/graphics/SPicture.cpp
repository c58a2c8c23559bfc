#include "SPicture.h"

#include "platform/INativeBitmap.h"

#include <array>
#include <cstdint>
#include <fstream>

namespace {

using Bytes = std::string;

void appendNumber(Bytes &bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xff);
}

std::uint32_t crc32(const Bytes &bytes) {
    std::uint32_t crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ 0xedb88320 : crc >> 1;
    }
    return ~crc;
}

std::uint32_t adler32(const Bytes &bytes) {
    std::uint32_t low = 1, high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<std::uint8_t>(byte)) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

Bytes chunk(const char *type, const Bytes &contents) {
    Bytes bytes;
    appendNumber(bytes, static_cast<std::uint32_t>(contents.size()));
    appendNumber(bytes += type + contents, crc32(type + contents));
    return bytes;
}

/// A zlib stream of stored blocks
Bytes stored(const Bytes &contents) {
    Bytes bytes = "\x78\x01";
    constexpr std::size_t longest = 65535;
    for (std::size_t start = 0; start < contents.size(); start += longest) {
        const Bytes block = contents.substr(start, longest);
        const auto size = static_cast<int>(block.size());
        bytes += static_cast<char>(start + longest >= contents.size() ? 1 : 0);
        for (const int value : {size, ~size})
            for (const int shift : {0, 8})
                bytes += static_cast<char>(value >> shift & 0xff);
        bytes += block;
    }
    appendNumber(bytes, adler32(contents));
    return bytes;
}

}  // namespace

SPicture pictureOf(const INativeSurface &surface) {
    SPicture picture(surface.getWidth(), surface.getHeight());
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            picture.at(x, y) = surface.getPixel({x, y});
    return picture;
}

std::optional<SPicture> readPicture(const std::string &path) {
    const auto bitmap = decodeNativeBitmap(path);
    if (bitmap == nullptr)
        return {};
    const auto surface =
        createNativeSurface(nullptr, bitmap->getWidth(), bitmap->getHeight(), SNativeColour{});
    surface->copyBitmap(*bitmap, {0, 0, bitmap->getWidth(), bitmap->getHeight()}, {0, 0});
    return pictureOf(*surface);
}

bool writePicture(const std::string &path, const SPicture &picture) {
    Bytes header, rows;
    appendNumber(header, static_cast<std::uint32_t>(picture.width));
    appendNumber(header, static_cast<std::uint32_t>(picture.height));
    header += {8, 2, 0, 0, 0};  // 8 bits per channel, colour without alpha
    for (int y = 0; y < picture.height; ++y) {
        rows += '\0';  // no filter
        for (int x = 0; x < picture.width; ++x) {
            const SNativeColour colour = picture.at(x, y);
            for (const std::uint8_t channel : {colour.red, colour.green, colour.blue})
                rows += static_cast<char>(channel);
        }
    }
    std::ofstream file(path, std::ios::binary);
    file << "\x89PNG\r\n\x1a\n"
         << chunk("IHDR", header) << chunk("IDAT", stored(rows)) << chunk("IEND", "");
    file.close();
    return !file.fail();
}
