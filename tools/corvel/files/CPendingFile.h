#pragma once

#include "corvel/files/PartFiles.h"

#include <filesystem>
#include <optional>

namespace Tessitor::Tool {

/// Whether an existing file may be replaced.
enum class EExisting { Kept, Replaced };

/// A file that appears only when it is complete: it is written under another name in the same
/// folder and then renamed. Until then an existing file stays as it was.
class CPendingFile {
public:
    /// Creates the empty file to write to. If `place` is a link, its target is meant, whether it
    /// exists or not.
    /// @throws CJobError if the folder does not exist or is not writable, or if `place` exists and
    ///         is not a regular file, is write-protected or is to be kept.
    explicit CPendingFile(const std::filesystem::path &place, EExisting existing = EExisting::Kept);

    /// Makes nothing.
    /// @throws CJobError if the constructor would fail. Some failures only show when it runs.
    static void requireWritable(const std::filesystem::path &place, EExisting existing);

    /// Deletes the file unless it was committed.
    ~CPendingFile();
    CPendingFile(const CPendingFile &) = delete;
    CPendingFile &operator=(const CPendingFile &) = delete;

    const std::filesystem::path &path() const { return m_path; }  ///< the file to write to
    /// A replaced file passes on its mode.
    /// @throws CJobError if the file cannot be renamed, or if there is now a file that is to be
    ///         kept.
    void commit();

private:
    static std::optional<std::filesystem::perms> modeToReplace(const std::filesystem::path &name,
                                                               const std::filesystem::path &place,
                                                               EExisting existing);
    void makeFileBeside();
    void replace();
    void appear();

    std::filesystem::path m_name;   // as the user wrote it
    std::filesystem::path m_place;  // without links
    EExisting m_existing;
    std::optional<std::filesystem::perms> m_mode;  // of the file that is replaced
    std::filesystem::path m_path;
    std::optional<CPartFile> m_part;
    bool m_committed = false;
};

}  // namespace Tessitor::Tool
