#pragma once

#include <cstddef>
#include <filesystem>

namespace Tessitor::Tool {

/// An unfinished file. While this exists, removePartFiles() knows the file. [any thread]
class CPartFile {
public:
    explicit CPartFile(const std::filesystem::path &path);
    ~CPartFile();
    CPartFile(const CPartFile &) = delete;
    CPartFile &operator=(const CPartFile &) = delete;

private:
    std::size_t m_entry;
};

/// Deletes all unfinished files. May be called in a signal handler, before the program ends.
void removePartFiles();

}  // namespace Tessitor::Tool
