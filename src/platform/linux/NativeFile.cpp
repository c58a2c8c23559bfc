#include "platform/NativeFile.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace {

std::uint64_t ticks(const struct statx_timestamp &time) {
    constexpr std::int64_t from1601To1970 = 11'644'473'600;  // s
    const std::int64_t seconds = time.tv_sec + from1601To1970;
    return seconds < 0 ? 0 : static_cast<std::uint64_t>(seconds) * 10'000'000 + time.tv_nsec / 100;
}

std::uint32_t attributes(unsigned mode, const std::string &name) {
    constexpr std::uint32_t readOnly = 1, hidden = 2, normal = 128;
    std::uint32_t bits = 0;
    if ((mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
        bits |= readOnly;
    if (name.starts_with('.'))
        bits |= hidden;
    if (S_ISDIR(mode))
        bits |= nativeFolderAttribute;
    return bits != 0 ? bits : normal;
}

}  // namespace

std::optional<SNativeFile> nativeFile(const std::string &path) {
    struct statx status {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0)
        return {};
    const std::string name = std::filesystem::path(path).filename().string();
    const bool hasCreationTime = (status.stx_mask & STATX_BTIME) != 0;
    return SNativeFile{attributes(status.stx_mode, name),
                       hasCreationTime ? ticks(status.stx_btime) : 0,
                       ticks(status.stx_atime),
                       ticks(status.stx_mtime),
                       status.stx_size,
                       name,
                       ""};
}

bool isNativeFolder(const std::string &path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isNativeRegularFile(const std::string &path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

int nativeFileCount(const std::string &folder) {
    std::error_code failed;
    int count = 0;
    std::filesystem::directory_iterator entry(folder, failed);
    for (; !failed && entry != std::filesystem::directory_iterator(); entry.increment(failed)) {
        std::error_code vanished;
        if (!entry->is_directory(vanished))
            ++count;
    }
    return count;
}
