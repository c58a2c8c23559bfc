#include "corvel/audio/OggLinks.h"

#include <array>
#include <fstream>
#include <numeric>
#include <string_view>
#include <system_error>

namespace Tessitor::Tool {

namespace {

struct SPageHead {
    std::array<char, 4> mark;  // "OggS"
    unsigned char version;
    unsigned char flags;
    std::array<unsigned char, 20> numbers;
    unsigned char segmentCount;  // as many bytes with the segments' lengths follow
};
static_assert(sizeof(SPageHead) == 27);

constexpr unsigned firstPage = 2, lastPage = 4;  // flags

// @return false at the end of the pages.
bool readPage(std::ifstream &file, std::uint64_t position, SPageHead &head, std::uint64_t &bytes) {
    file.seekg(static_cast<std::streamoff>(position));
    file.read(reinterpret_cast<char *>(&head), sizeof(head));
    if (file.gcount() != sizeof(head) ||
        std::string_view(head.mark.data(), head.mark.size()) != "OggS")
        return false;
    std::array<unsigned char, 255> segments{};
    file.read(reinterpret_cast<char *>(segments.data()), head.segmentCount);
    bytes = std::accumulate(segments.begin(), segments.begin() + head.segmentCount,
                            sizeof(head) + head.segmentCount);
    return file.gcount() == head.segmentCount;
}

}  // namespace

SOggLinks findOggLinks(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    std::error_code ignored;
    const std::uint64_t fileBytes = std::filesystem::file_size(path, ignored);
    SOggLinks result{{}, false};
    SPageHead head;
    std::uint64_t position = 0, bytes = 0;
    bool amongFirstPages = false;  // several streams in a link have their first pages together
    while (position < fileBytes && readPage(file, position, head, bytes)) {
        const bool isFirst = (head.flags & firstPage) != 0;
        if (isFirst && !amongFirstPages)
            result.links.push_back({position, position});
        amongFirstPages = isFirst;
        position += bytes;
        result.complete = position <= fileBytes && (head.flags & lastPage) != 0;
        if (!result.links.empty())
            result.links.back().end = position;
    }
    return result;
}

}  // namespace Tessitor::Tool
