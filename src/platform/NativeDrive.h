#pragma once

#include <string>

/// Drives, that is, mounted file systems. [any thread]
///
/// On Windows a drive is named by its root with the separator, "C:\\". On Linux any path on it will
/// do: the mount that holds the path is meant.

/// @return the drive that holds the path: on Windows its root, on Linux its mount point. "" if there
///         is none, and on Linux also if nothing exists at the path.
std::string nativeDriveOf(const std::string &path);

/// What a file system is called; both "" if there is none at that path.
struct SNativeVolume {
    std::string name;        // its label; "" if it has none
    std::string fileSystem;  // "NTFS", "ext4"
};
SNativeVolume nativeVolume(const std::string &drive);

/// The numbers are Windows' own.
enum class ENativeDriveType {
    Unknown = 0,
    NoRoot = 1,  // nothing at that path
    Removable = 2,
    Fixed = 3,
    Remote = 4,
    Optical = 5,
    RamDisk = 6
};
ENativeDriveType nativeDriveType(const std::string &drive);

/// @return the folder that the system is installed in, without a separator at its end: on Windows
///         the Windows folder, on Linux "/usr".
std::string nativeSystemFolder();
