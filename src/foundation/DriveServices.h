#pragma once

#include "foundation/CSystemString.h"
#include "platform/NativeDrive.h"

/// Drives and folders of the system. On Windows a drive is named by its root, "C:\\"; on Linux any
/// path on it will do. [one thread at a time]
namespace Tessitor::Host {

/// @return the drive that holds the path: its root on Windows, its mount point on Linux; "" if there
///         is none.
Basics::CSystemString getDriveOf(const Basics::CSystemString &path);

/// @return the label of the drive; "" if it has none or is not there.
Basics::CString getVolumeName(const Basics::CSystemString &drive);
Basics::CString getFileSystem(const Basics::CSystemString &drive);  ///< "NTFS", "ext4"; "" likewise

ENativeDriveType getDriveType(const Basics::CSystemString &drive);
bool isFixedDrive(const Basics::CSystemString &drive);
bool isRemoteDrive(const Basics::CSystemString &drive);
bool isOpticalDrive(const Basics::CSystemString &drive);

/// @return the folder that the system is installed in, without a separator at its end: on Linux
///         "/usr".
Basics::CSystemString getWindowsFolder();

/// @return how many files the folder has, its folders not counted; 0 if it cannot be read.
int getFileCount(const Basics::CSystemString &folder);

}  // namespace Tessitor::Host
