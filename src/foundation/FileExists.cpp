#include "foundation/FileExists.h"

#include "platform/NativeFile.h"

#include <cstdio>

namespace Tessitor::Host {

bool fileExists(const Basics::CSystemString &path) {
    if (folderExists(path))
        return false;
    std::FILE *file = std::fopen(path.getString(), "r");
    return file != nullptr && std::fclose(file) == 0;
}

bool fileExists(const Basics::CSystemString &folder, const Basics::CString &name) {
    Basics::CSystemString path(folder);
    path.appendPath(name);
    return fileExists(path);
}

bool folderExists(const Basics::CSystemString &path) {
    return isNativeFolder(path.getString());
}

}  // namespace Tessitor::Host
