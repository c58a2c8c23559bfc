#pragma once

#include <string>

/// Drives: mounted file systems. [any thread]
///
/// On Windows, name a drive by its root with the separator, "C:\\". On Linux, any path on the drive
/// will do.

/// @return the drive that holds the path: its root on Windows, its mount point on Linux. "" if
///         there is no such drive. On Linux also "" if the path does not exist.
std::string nativeDriveOf(const std::string &path);

/// The label and file system of a drive; both are empty if there is no drive at that path.
struct SNativeVolume {
    std::string name;        // the label; "" if it has none
    std::string fileSystem;  // "NTFS", "ext4"
};
SNativeVolume nativeVolume(const std::string &drive);

/// The numbers are those of GetDriveType() on Windows.
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

/// @return the folder of the operating system without a trailing separator: the Windows folder on
///         Windows, "/usr" on Linux.
std::string nativeSystemFolder();
