#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <string>

/// The bytes of picture files, written by hand so that tests can also write wrong ones.

inline std::string bigEndian(std::uint32_t value, int bytes = 4) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift);
    return text;
}

inline std::string pngChunk(const std::string &name, const std::string &contents) {
    const std::string checked = name + contents;
    std::uint32_t sum = 0xffffffff;
    for (const char character : checked) {
        sum ^= static_cast<unsigned char>(character);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320 : 0);
    }
    return bigEndian(static_cast<std::uint32_t>(contents.size())) + checked + bigEndian(~sum);
}

/// @return a zlib stream that stores the bytes without compressing them.
inline std::string storedStream(const std::string &bytes) {
    std::string stream = "\x78\x01";
    std::uint32_t low = 1, high = 0;
    for (const char character : bytes) {
        low = (low + static_cast<unsigned char>(character)) % 65521;
        high = (high + low) % 65521;
    }
    constexpr std::size_t mostInBlock = 65535;
    std::size_t position = 0;
    do {
        const std::string block = bytes.substr(position, mostInBlock);
        position += block.size();
        const auto length = static_cast<std::uint32_t>(block.size());
        stream += position == bytes.size() ? '\1' : '\0';
        for (const std::uint32_t value : {length, ~length}) {
            stream += static_cast<char>(value);
            stream += static_cast<char>(value >> 8);
        }
        stream += block;
    } while (position < bytes.size());
    return stream + bigEndian(high << 16 | low);
}

struct SPng {
    std::uint32_t width = 1, height = 1;
    std::string kind = "\x8\x6";          // depth and colour type: here eight bits, with alpha
    std::string rows{"\0\1\2\3\xff", 5};  // each begins with 0, for no filter
    std::string extra;                    // chunks before the rows, such as a palette
    bool isInterlaced = false;

    std::string bytes() const {
        const std::string header = bigEndian(width) + bigEndian(height) + kind +
                                   std::string(2, '\0') + (isInterlaced ? '\1' : '\0');
        return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", header) + extra +
               pngChunk("IDAT", storedStream(rows)) + pngChunk("IEND", "");
    }
};

/// @return a PNG of one colour.
/// @param colour  four bytes: red, green, blue, alpha.
inline std::string pngBytes(std::uint32_t width, std::uint32_t height, const std::string &colour) {
    std::string row(1, '\0'), rows;
    for (std::uint32_t x = 0; x < width; ++x)
        row += colour;
    for (std::uint32_t y = 0; y < height; ++y)
        rows += row;
    SPng png;
    png.width = width;
    png.height = height;
    png.rows = rows;
    return png.bytes();
}

/// @param contents  of the segment, after its length.
inline std::string jpegSegment(std::uint8_t marker, const std::string &contents) {
    std::string segment = "\xff";
    segment += static_cast<char>(marker);
    return segment + bigEndian(static_cast<std::uint32_t>(contents.size()) + 2, 2) + contents;
}

/// A JPEG with one component, grey 128 all over. Its blocks have two bits each, both 0.
struct SJpeg {
    std::uint32_t width = 8, height = 8;
    std::uint8_t frame = 0xc0;  // baseline
    std::string depth = "\x8";
    std::string components = "\1\1\x11" + std::string(1, '\0');  // how many; number, factors, table
    std::string extra;                                           // segments before the frame

    std::string head() const {
        const std::string tables = jpegSegment(0xdb, std::string(1, '\0') + std::string(64, '\1')) +
                                   jpegSegment(0xc4, table(0)) + jpegSegment(0xc4, table(0x10));
        return "\xff\xd8" + extra + tables +
               jpegSegment(frame, depth + bigEndian(height, 2) + bigEndian(width, 2) + components) +
               jpegSegment(0xda, {1, 1, 0, 0, 63, 0});
    }
    std::string bytes() const {
        const std::uint32_t blocks = ((width + 7) / 8) * ((height + 7) / 8);
        const std::string whole(blocks / 4, '\0');
        constexpr std::array<char, 4> last = {'\0', '\x3f', '\x0f', '\x03'};  // padded with ones
        const std::string rest(blocks % 4 > 0 ? 1 : 0, last[blocks % 4]);
        return head() + whole + rest + "\xff\xd9";
    }

private:
    // A table with a single code of one bit, which means 0.
    static std::string table(char kind) {
        return kind + std::string(1, '\1') + std::string(16, '\0');
    }
};

inline void writeBytes(const std::string &path, const std::string &bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}
