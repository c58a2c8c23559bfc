#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace Tessitor::Tool {

/// Bytes that are too many for the memory: written once, then read. They are kept in a file without
/// a name, so it ends with the program, whatever ends it.
class CScratchFile {
public:
    /// @param place  of the file that is made from them, which decides on the disk; or "-" for
    ///               standard output. Errors name it.
    /// @throws CJobError if nothing can be written there.
    explicit CScratchFile(const std::filesystem::path &place);

    /// @throws CJobError, for example if the disk is full.
    void write(const void *bytes, std::size_t count);

    /// Reads from the start. Nothing can be written after that.
    void rewind();

    /// @return bytes read; fewer than requested only at the end.
    std::size_t read(void *bytes, std::size_t count);

private:
    struct SCloser {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    [[noreturn]] void fail() const;

    std::filesystem::path m_place;
    std::unique_ptr<std::FILE, SCloser> m_file;
};

}  // namespace Tessitor::Tool
