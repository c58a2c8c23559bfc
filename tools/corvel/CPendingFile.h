#pragma once

#include <filesystem>

namespace Tessitor::Tool {

/// A file that appears only when it is complete: it is written under another name in the same
/// folder and then renamed. Until then an existing file stays as it was.
class CPendingFile {
public:
    /// Creates the empty file to write to.
    /// @throws CJobError if the folder does not exist or is not writable, or if `place` exists and
    ///         is not a regular file.
    explicit CPendingFile(const std::filesystem::path &place);
    /// Deletes the file unless it was committed.
    ~CPendingFile();
    CPendingFile(const CPendingFile &) = delete;
    CPendingFile &operator=(const CPendingFile &) = delete;

    const std::filesystem::path &path() const { return m_path; }  ///< the file to write to
    /// @throws CJobError if the file cannot be renamed.
    void commit();

private:
    std::filesystem::path m_place;
    std::filesystem::path m_path;
    bool m_committed = false;
};

}  // namespace Tessitor::Tool
