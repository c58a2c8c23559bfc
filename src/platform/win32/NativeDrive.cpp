#include "platform/NativeDrive.h"

#include <windows.h>

std::string nativeDriveOf(const std::string &path) {
    char root[MAX_PATH + 1] = {};
    if (GetVolumePathNameA(path.c_str(), root, sizeof root) == 0)
        return {};
    return root;
}

SNativeVolume nativeVolume(const std::string &drive) {
    char name[MAX_PATH + 1] = {}, fileSystem[MAX_PATH + 1] = {};
    if (GetVolumeInformationA(drive.c_str(), name, sizeof name, nullptr, nullptr, nullptr,
                              fileSystem, sizeof fileSystem) == 0)
        return {};
    return {name, fileSystem};
}

ENativeDriveType nativeDriveType(const std::string &drive) {
    return static_cast<ENativeDriveType>(GetDriveTypeA(drive.c_str()));
}

std::string nativeSystemFolder() {
    char path[2048] = {};
    GetWindowsDirectoryA(path, sizeof path);
    return path;
}
