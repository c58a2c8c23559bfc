#pragma once

#include <filesystem>

namespace Tessitor::Tool {

/// A file that comes into its place when it is complete: it is written beside it under another name
/// and then renamed. Until then, and for ever if it is not committed, what stands there stays.
class CPendingFile {
public:
    /// Makes the empty file to write.
    /// @throws CJobError if there is no such folder, nothing can be written in it, or something
    ///         other than a file stands in the place.
    explicit CPendingFile(const std::filesystem::path &place);
    /// Removes what was written, unless it was committed.
    ~CPendingFile();
    CPendingFile(const CPendingFile &) = delete;
    CPendingFile &operator=(const CPendingFile &) = delete;

    const std::filesystem::path &path() const { return m_path; }  ///< the file to write
    /// @throws CJobError if the file cannot be renamed.
    void commit();

private:
    std::filesystem::path m_place;
    std::filesystem::path m_path;
    bool m_committed = false;
};

}  // namespace Tessitor::Tool
