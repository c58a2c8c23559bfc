#include "corvel/CPendingFile.h"

#include "corvel/Errors.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

// Follows links, so that the target is replaced and the link stays.
fs::path resolved(const fs::path &place) {
    std::error_code error;
    const fs::path real = fs::weakly_canonical(place, error);
    return error ? place : real;
}

// Opens with "x", so that no existing file is overwritten, not even that of another corvel process.
fs::path makeFileBeside(const fs::path &place) {
    constexpr int attempts = 1000;
    for (int number = 0; number < attempts; ++number) {
        std::string name = ".";
        name.append(place.filename()).append(".").append(std::to_string(number)).append(".part");
        fs::path candidate = place;
        candidate.replace_filename(name);
        if (std::FILE *file = std::fopen(candidate.c_str(), "wbx")) {
            std::fclose(file);
            return candidate;
        }
        if (errno != EEXIST)
            break;
    }
    throw CJobError(place.string() + ": cannot be written (" +
                    std::system_category().message(errno) + ")");
}

}  // namespace

CPendingFile::CPendingFile(const fs::path &place) : m_place(resolved(place)) {
    // Renaming would replace a device or a pipe with a file.
    if (fs::exists(m_place) && !fs::is_regular_file(m_place))
        throw CJobError(place.string() + ": cannot be written (not a file)");
    m_path = makeFileBeside(m_place);
}

CPendingFile::~CPendingFile() {
    std::error_code ignored;  // nothing can be done about it
    if (!m_committed)
        fs::remove(m_path, ignored);
}

void CPendingFile::commit() {
    std::error_code error;
    fs::rename(m_path, m_place, error);
    if (error)
        throw CJobError(m_place.string() + ": cannot be written (" + error.message() + ")");
    m_committed = true;
}

}  // namespace Tessitor::Tool
