#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace Tessitor::Tool {

/// An Ogg file consists of one or more links, each a complete file of its own.
struct SOggLinks {
    struct SLink {
        std::uint64_t begin, end;  // offsets in the file
    };
    std::vector<SLink> links;
    bool complete;  // the last page is whole and marked as the last
};

/// @param file  an Ogg file.
SOggLinks findOggLinks(const std::filesystem::path &file);

}  // namespace Tessitor::Tool
