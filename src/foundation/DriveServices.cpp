#include "foundation/DriveServices.h"

#include "platform/NativeFile.h"

namespace Tessitor::Host {

using Basics::CString;
using Basics::CSystemString;

CSystemString getDriveOf(const CSystemString &path) {
    return nativeDriveOf(path.getString()).c_str();
}

CString getVolumeName(const CSystemString &drive) {
    return nativeVolume(drive.getString()).name.c_str();
}

CString getFileSystem(const CSystemString &drive) {
    return nativeVolume(drive.getString()).fileSystem.c_str();
}

ENativeDriveType getDriveType(const CSystemString &drive) {
    return nativeDriveType(drive.getString());
}

bool isFixedDrive(const CSystemString &drive) {
    return getDriveType(drive) == ENativeDriveType::Fixed;
}

bool isRemoteDrive(const CSystemString &drive) {
    return getDriveType(drive) == ENativeDriveType::Remote;
}

bool isOpticalDrive(const CSystemString &drive) {
    return getDriveType(drive) == ENativeDriveType::Optical;
}

CSystemString getWindowsFolder() {
    return nativeSystemFolder().c_str();
}

int getFileCount(const CSystemString &folder) {
    return nativeFileCount(folder.getString());
}

}  // namespace Tessitor::Host
