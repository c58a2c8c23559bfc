#pragma once

#include "foundation/CSystemString.h"
#include "platform/NativeDrive.h"

/// Drives and folders. On Windows, name a drive by its root, "C:\\". On Linux, any path on the
/// drive will do. [one thread at a time]
namespace Tessitor::Host {

/// @return the drive that holds the path: its root on Windows, its mount point on Linux; "" if
///         there is no such drive.
Basics::CSystemString getDriveOf(const Basics::CSystemString &path);

/// Both are "" if there is no such drive. A drive without a label has the name "".
Basics::CString getVolumeName(const Basics::CSystemString &drive);
Basics::CString getFileSystem(const Basics::CSystemString &drive);  ///< "NTFS", "ext4"

ENativeDriveType getDriveType(const Basics::CSystemString &drive);
bool isFixedDrive(const Basics::CSystemString &drive);
bool isRemoteDrive(const Basics::CSystemString &drive);
bool isOpticalDrive(const Basics::CSystemString &drive);

/// @return the folder of the operating system without a trailing separator; "/usr" on Linux.
Basics::CSystemString getWindowsFolder();

/// @return the number of entries that are not folders; 0 if the folder cannot be read.
int getFileCount(const Basics::CSystemString &folder);

}  // namespace Tessitor::Host
