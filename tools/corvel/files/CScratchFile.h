#pragma once

#include "corvel/files/CPendingFile.h"

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace Tessitor::Tool {

/// Bytes that are too many for the memory: written once, then read. They lie beside the file that
/// is made from them, in a file that is deleted with this object, or by a signal that ends the
/// program.
class CScratchFile {
public:
    /// @param beside  the file that is made from it; also what errors name.
    /// @throws CJobError if nothing can be written there.
    CScratchFile(const std::filesystem::path &beside, EExisting existing);

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

    std::filesystem::path m_beside;
    CPendingFile m_pending;  // never committed; must outlive m_file
    std::unique_ptr<std::FILE, SCloser> m_file;
};

}  // namespace Tessitor::Tool
