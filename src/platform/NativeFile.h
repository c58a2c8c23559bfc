#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What the system knows of a file or a folder without opening it. Paths and names are in the
/// system's own narrow encoding. [any thread]
struct SNativeFile {
    /// Windows' bits on every system. Linux knows four of them: 1, nobody may write it; 2, its name
    /// begins with a "."; 16, it is a folder; 128, none of these.
    std::uint32_t attributes = 0;
    // Steps of 100 ns since the beginning of 1601, UTC; 0 if the file system does not keep it.
    std::uint64_t creationTime = 0;
    std::uint64_t lastAccessTime = 0;
    std::uint64_t lastWriteTime = 0;
    std::uint64_t size = 0;  // bytes
    std::string name;        // without its folder
    std::string shortName;   // the second name of eight and three characters; "" if there is none
};

inline constexpr std::uint32_t nativeFolderAttribute = 16;

/// @param path  without a separator at its end, behind which Windows finds no folder. Windows takes
///              the first match of a name with "*" or "?" in it; Linux follows symbolic links.
/// @return nothing if there is no such file.
std::optional<SNativeFile> nativeFile(const std::string &path);

/// @return whether the path leads to a folder. Links are followed, a separator at the end is allowed,
///         and a pattern is not a path.
bool isNativeFolder(const std::string &path);

/// @return how many entries of the folder are no folders themselves; 0 if it cannot be read.
int nativeFileCount(const std::string &folder);
