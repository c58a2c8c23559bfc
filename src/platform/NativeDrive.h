#pragma once

#include <string>

/// The file systems that files lie on. [any thread]
///
/// A drive is told by a path: on Windows the root of one with its separator, "C:\\"; on Linux any
/// path, which stands for the file system that is mounted there.

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
