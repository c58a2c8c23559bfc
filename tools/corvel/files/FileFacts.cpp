#include "corvel/files/FileFacts.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

std::string whyNoFile(const fs::path &file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
        return "no such file";
    if (error)
        return "cannot be read (" + error.message() + ")";
    if (!fs::is_regular_file(status))
        return "not a file";
    std::FILE *opened = std::fopen(file.c_str(), "rb");
    if (opened == nullptr)
        return "cannot be read (" + std::system_category().message(errno) + ")";
    std::fclose(opened);
    return "";
}

bool isSameFile(const fs::path &a, const fs::path &b) {
    std::error_code none;
    return fs::equivalent(a, b, none);
}

bool isNewer(const fs::path &file, const fs::path &other) {
    std::error_code noFile, noOther;
    const auto time = fs::last_write_time(file, noFile);
    const auto otherTime = fs::last_write_time(other, noOther);
    return !noFile && !noOther && fs::is_regular_file(file, noFile) && time > otherTime;
}

fs::path placeOf(const fs::path &file) {
    std::error_code error;
    const fs::path place = fs::weakly_canonical(file, error);
    return error ? file.lexically_normal() : place;
}

}  // namespace Tessitor::Tool
