#pragma once

#include "foundation/CSystemString.h"
#include "platform/NativeDrive.h"

/// Drives and folders of the system. A drive is told by a path: on Windows the root of one, "C:\\";
/// on Linux any path, which stands for the file system mounted there. [any thread]
namespace Tessitor::Host {

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
