#include "platform/PictureFile.h"

#include "platform/NativeFile.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

namespace {

constexpr std::uint32_t longestSide = 32767;

bool isSide(std::uint32_t pixels) {
    return pixels >= 1 && pixels <= longestSide;
}

/// Reads a file of big-endian numbers from start to end.
class CBytes {
public:
    explicit CBytes(const std::string &path) : m_file(path, std::ios::binary) {}

    /// True until a read or skip has gone past the end of the file.
    bool isGood() const { return m_file.good(); }
    /// @return a number of up to four bytes; wrong if the file has ended.
    std::uint32_t number(int bytes) {
        std::uint32_t value = 0;
        for (int i = 0; i < bytes; ++i)
            value = value << 8 | (static_cast<std::uint32_t>(m_file.get()) & 255);
        return value;
    }
    std::uint32_t byte() { return number(1); }
    void skip(std::uint32_t bytes) {
        m_file.ignore(bytes);
        if (m_file.gcount() != static_cast<std::streamsize>(bytes))
            m_file.setstate(std::ios::failbit);
    }

private:
    std::ifstream m_file;
};

// PNG: the signature, then chunks of length, name, contents and check sum.

constexpr std::uint32_t pngSignature = 0x89504e47;  // its first half

constexpr std::uint32_t chunkName(const char (&name)[5]) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(name[i]);
    return value;
}

// @return the samples of a pixel; 0 if the colour type is unknown or does not allow the depth.
std::uint32_t samplesPerPixel(std::uint32_t colourType, std::uint32_t depth) {
    const bool isByteOrMore = depth == 8 || depth == 16;
    const bool isLess = depth == 1 || depth == 2 || depth == 4;
    switch (colourType) {
    case 0:  // grey
        return isByteOrMore || isLess ? 1 : 0;
    case 2:  // red, green, blue
        return isByteOrMore ? 3 : 0;
    case 3:  // index into a palette
        return depth == 8 || isLess ? 1 : 0;
    case 4:  // grey, alpha
        return isByteOrMore ? 2 : 0;
    case 6:  // red, green, blue, alpha
        return isByteOrMore ? 4 : 0;
    default:
        return 0;
    }
}

struct SPngHeader {
    SPictureSize size;
    std::uint64_t bytes;  // of all rows, at least
};

// Reads the second half of the signature and the header chunk.
std::optional<SPngHeader> readPngHeader(CBytes &bytes) {
    if (bytes.number(4) != 0x0d0a1a0a || bytes.number(4) != 13 ||
        bytes.number(4) != chunkName("IHDR"))
        return {};
    const std::uint32_t width = bytes.number(4), height = bytes.number(4);
    const std::uint32_t depth = bytes.byte();
    const std::uint32_t samples = samplesPerPixel(bytes.byte(), depth);
    const bool areMethodsKnown = bytes.number(2) == 0 && bytes.byte() <= 1;
    bytes.skip(4);
    if (!bytes.isGood() || !isSide(width) || !isSide(height) || samples == 0 || !areMethodsKnown)
        return {};
    const std::uint32_t rowBytes = 1 + (width * samples * depth + 7) / 8;  // 1 for the filter
    return SPngHeader{{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)},
                      std::uint64_t{rowBytes} * height};
}

bool isWholePng(CBytes &bytes) {
    const std::optional<SPngHeader> header = readPngHeader(bytes);
    if (!header)
        return false;
    std::uint64_t compressed = 0;
    while (bytes.isGood()) {
        const std::uint32_t length = bytes.number(4), name = bytes.number(4);
        bytes.skip(length);
        bytes.skip(4);
        if (name == chunkName("IDAT"))
            compressed += length;
        if (name == chunkName("IEND")) {
            constexpr std::uint64_t deflateLimit = 1032;  // bytes from one byte
            return bytes.isGood() && header->bytes <= compressed * deflateLimit;
        }
    }
    return false;
}

// JPEG: markers, most of them followed by a segment with its length, and the coded picture between
// some of them.

constexpr std::uint32_t startOfImage = 0xd8, endOfImage = 0xd9, startOfScan = 0xda;

// Finds the next marker. In the coded picture, 0xFF is followed by 0 or by a restart marker.
// @param passed  raised by the number of bytes before it.
std::uint32_t nextMarker(CBytes &bytes, std::uint64_t &passed) {
    std::uint32_t last = 0;
    while (bytes.isGood()) {
        const std::uint32_t byte = bytes.byte();
        const bool isRestart = byte >= 0xd0 && byte <= 0xd7;
        if (last == 0xff && byte != 0 && byte != 0xff && !isRestart)
            return byte;
        last = byte;
        ++passed;
    }
    return 0;
}

bool isFrame(std::uint32_t marker) {
    constexpr std::uint32_t huffmanTables = 0xc4, arithmeticTables = 0xcc, extension = 0xc8;
    return marker >= 0xc0 && marker <= 0xcf && marker != huffmanTables &&
           marker != arithmeticTables && marker != extension;
}

// @return the blocks of 8 by 8 samples in all components of a picture; 0 if the frame is wrong.
std::uint64_t readFrame(CBytes &bytes, std::uint32_t length) {
    const std::uint32_t depth = bytes.byte();
    const std::uint32_t height = bytes.number(2), width = bytes.number(2);
    const std::uint32_t components = bytes.byte();
    const bool areComponents = components == 1 || components == 3 || components == 4;
    if (depth != 8 || !isSide(width) || !isSide(height) || !areComponents ||
        length != 8 + 3 * components)
        return 0;

    std::uint32_t across[4], down[4];  // samples of each component in a cell of the picture
    std::uint32_t mostAcross = 0, mostDown = 0;
    for (std::uint32_t i = 0; i < components; ++i) {
        bytes.skip(1);
        const std::uint32_t factors = bytes.byte();
        bytes.skip(1);
        across[i] = factors >> 4;
        down[i] = factors & 15;
        if (across[i] < 1 || across[i] > 4 || down[i] < 1 || down[i] > 4)
            return 0;
        mostAcross = std::max(mostAcross, across[i]);
        mostDown = std::max(mostDown, down[i]);
    }
    std::uint64_t blocks = 0;
    for (std::uint32_t i = 0; i < components; ++i)
        blocks += std::uint64_t{(width * across[i] / mostAcross + 7) / 8} *
                  ((height * down[i] / mostDown + 7) / 8);
    return blocks;
}

bool isWholeJpeg(CBytes &bytes) {
    constexpr std::uint32_t lastKnownFrame = 0xc2;  // baseline, extended, progressive
    constexpr int mostScans = 100;  // each costs as much time as the picture is large
    std::uint64_t blocks = 0, coded = 0;
    int scans = 0;
    while (bytes.isGood()) {
        const std::uint32_t marker = nextMarker(bytes, coded);
        if (marker == endOfImage)
            return scans > 0 && blocks <= coded * 8;
        const std::uint32_t length = bytes.number(2);
        if (marker == startOfImage || length < 2)
            return false;
        if (isFrame(marker)) {
            if (blocks != 0 || marker > lastKnownFrame)
                return false;
            blocks = readFrame(bytes, length);
            if (blocks == 0)
                return false;
            continue;
        }
        if (marker == startOfScan && (blocks == 0 || ++scans > mostScans))
            return false;
        bytes.skip(length - 2);
    }
    return false;
}

}  // namespace

std::optional<EPictureFormat> pictureFormat(const std::string &path) {
    if (!isNativeRegularFile(path))
        return {};
    CBytes bytes(path);
    const std::uint32_t signature = bytes.number(2);
    if (signature == pngSignature >> 16 && bytes.number(2) == (pngSignature & 0xffff) &&
        isWholePng(bytes))
        return EPictureFormat::PNG;
    if (signature == 0xffd8 && isWholeJpeg(bytes))
        return EPictureFormat::JPEG;
    return {};
}

std::optional<SPictureSize> pngSize(const std::string &path) {
    if (!isNativeRegularFile(path))
        return {};
    CBytes bytes(path);
    if (bytes.number(4) != pngSignature)
        return {};
    const std::optional<SPngHeader> header = readPngHeader(bytes);
    return header ? std::optional(header->size) : std::nullopt;
}
