#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What the system says about a file or folder without opening it. Paths and names are in the
/// system's narrow encoding. [any thread]
struct SNativeFile {
    /// Attribute bits as on Windows. Linux sets four of them: 1 if nobody has write permission, 2
    /// if the name begins with ".", 16 for a folder, and 128 if none of the others is set.
    std::uint32_t attributes = 0;
    // Units of 100 ns since 1 January 1601, UTC; 0 if the file system does not record that time.
    std::uint64_t creationTime = 0;
    std::uint64_t lastAccessTime = 0;
    std::uint64_t lastWriteTime = 0;
    std::uint64_t size = 0;  // bytes
    std::string name;        // without its folder
    std::string shortName;   // the 8.3 name; "" if there is none
};

inline constexpr std::uint32_t nativeFolderAttribute = 16;

/// @param path  without a trailing separator: with one, Windows finds nothing. If the name
///              contains "*" or "?", Windows takes the first match. Linux follows symbolic links.
/// @return nothing if there is no such file.
std::optional<SNativeFile> nativeFile(const std::string &path);

/// @return true if the path leads to a folder. Follows links, accepts a trailing separator, and
///         does not expand "*" or "?".
bool isNativeFolder(const std::string &path);

/// @return true if the path leads to a regular file: not a folder, a pipe, a device or a socket.
///         Follows links and does not expand "*" or "?".
bool isNativeRegularFile(const std::string &path);

/// @return the number of entries that are not folders; 0 if the folder cannot be read.
int nativeFileCount(const std::string &folder);
