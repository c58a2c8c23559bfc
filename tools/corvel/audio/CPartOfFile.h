#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sndfile.h>
#include <string>

namespace Tessitor::Tool {

/// The part of a file that libsndfile is to read.
struct SFilePart {
    std::uint64_t begin = 0, end = 0;  // offsets
    std::uint64_t patch = 0;           // offset of bytes that are to be read differently
    std::string patched = {};          // these bytes
};

/// Presents a part of a file to libsndfile as a file of its own.
class CPartOfFile {
public:
    CPartOfFile(const std::filesystem::path &file, SFilePart part);

    /// @return as sf_open_virtual(). This object must outlive the result.
    SNDFILE *open(SF_INFO &info);

private:
    sf_count_t length() const;
    sf_count_t seek(sf_count_t offset, int whence);
    sf_count_t read(char *bytes, sf_count_t count);

    std::ifstream m_file;
    SFilePart m_part;
    sf_count_t m_position = 0;  // in the part
};

}  // namespace Tessitor::Tool
