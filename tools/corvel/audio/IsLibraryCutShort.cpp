#include "corvel/audio/IsLibraryCutShort.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace Tessitor::Tool {

namespace {

// The parts of a 64-bit ELF file that say what is loaded
struct SFileHeader {
    std::array<char, 32> identityAndType;
    std::uint64_t segmentTable;  // offset in the file
    std::uint64_t sectionTable;  // offset, at the end of the file; 0 for none
    std::array<char, 6> flags;
    std::uint16_t segmentSize;  // bytes of one entry
    std::uint16_t segmentCount;
    std::uint16_t sectionSize;
    std::uint16_t sectionCount;
    std::uint16_t sectionNames;
};
static_assert(sizeof(SFileHeader) == 64 && offsetof(SFileHeader, segmentSize) == 54);

struct SSegment {
    std::uint32_t type;
    std::uint32_t flags;
    std::uint64_t place;  // offset in the file
    std::uint64_t addresses[2];
    std::uint64_t bytes;  // in the file
};
static_assert(sizeof(SSegment) == 40);

constexpr std::string_view identity = "\x7F"
                                      "ELF\x02\x01";  // 64 bits, little-endian
constexpr std::uint32_t loaded = 1;

template <typename Record>
bool read(std::ifstream &file, Record &record) {
    file.read(reinterpret_cast<char *>(&record), sizeof(record));
    return file.gcount() == sizeof(record);
}

}  // namespace

bool isLibraryCutShort(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    const std::uint64_t fileBytes = std::filesystem::file_size(path);
    SFileHeader header;
    if (!read(file, header) ||
        !std::string_view(header.identityAndType.data(), header.identityAndType.size())
             .starts_with(identity))
        return false;
    const std::uint64_t sections = std::uint64_t(header.sectionSize) * header.sectionCount;
    if (header.sectionTable > fileBytes || sections > fileBytes - header.sectionTable)
        return true;
    for (std::uint16_t i = 0; i < header.segmentCount; ++i) {
        file.seekg(static_cast<std::streamoff>(header.segmentTable +
                                               std::uint64_t(i) * header.segmentSize));
        SSegment segment;
        if (!read(file, segment))
            return true;
        if (segment.type == loaded &&
            (segment.place > fileBytes || segment.bytes > fileBytes - segment.place))
            return true;
    }
    return false;
}

}  // namespace Tessitor::Tool
