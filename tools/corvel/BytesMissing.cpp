#include "corvel/BytesMissing.h"

#include <array>
#include <fstream>
#include <string_view>

namespace Tessitor::Tool {

namespace {

// A program that writes to a pipe cannot go back and fill in the length. It writes 0 or a length
// from here up.
constexpr std::uint32_t unknownFrom = 0x7F000000;

struct SChunkHead {
    std::array<char, 4> id;
    std::array<unsigned char, 4> size;
};
static_assert(sizeof(SChunkHead) == 8);

bool readHead(std::ifstream &file, SChunkHead &head) {
    file.read(reinterpret_cast<char *>(&head), sizeof(head));
    return file.gcount() == sizeof(head);
}

std::string_view idOf(const SChunkHead &head) {
    return {head.id.data(), head.id.size()};
}

std::uint32_t sizeOf(const SChunkHead &head, bool bigEndian) {
    std::uint32_t size = 0;
    for (std::size_t i = 0; i < 4; ++i)
        size = size << 8 | head.size[bigEndian ? i : 3 - i];
    return size;
}

}  // namespace

std::uint64_t bytesMissing(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    SChunkHead head;
    if (!readHead(file, head))
        return 0;
    const bool wav = idOf(head) == "RIFF" || idOf(head) == "RIFX";
    const bool aiff = idOf(head) == "FORM";
    if (!wav && !aiff)
        return 0;
    const bool bigEndian = idOf(head) != "RIFF";
    const std::string_view sound = wav ? "data" : "SSND";
    const std::uint64_t fileBytes = std::filesystem::file_size(path);

    file.ignore(4);  // "WAVE", "AIFF" or "AIFC"
    std::uint64_t position = 12;
    while (readHead(file, head)) {
        position += sizeof(head);
        const std::uint64_t size = sizeOf(head, bigEndian);
        if (idOf(head) == sound) {
            const bool known = size != 0 && size < unknownFrom;
            return known && position + size > fileBytes ? position + size - fileBytes : 0;
        }
        position += size + size % 2;  // chunks start at even offsets
        file.seekg(static_cast<std::streamoff>(position));
    }
    return 0;
}

}  // namespace Tessitor::Tool
