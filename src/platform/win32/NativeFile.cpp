#include "platform/NativeFile.h"

#include <windows.h>

namespace {

std::uint64_t joined(DWORD high, DWORD low) {
    return std::uint64_t{high} << 32 | low;
}

std::uint64_t ticks(const FILETIME &time) {
    return joined(time.dwHighDateTime, time.dwLowDateTime);
}

// Pipes and devices, such as NUL and COM1 without a folder.
bool isAmongDevices(const std::string &path) {
    std::string whole(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr), '\0');
    GetFullPathNameA(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
    return whole.starts_with(R"(\\.\)");
}

enum class EKind { None, Folder, RegularFile };

EKind kindAt(const std::string &path) {
    // GetFileAttributesA() would describe a link itself and not what it points to.
    const HANDLE handle =
        CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return EKind::None;
    BY_HANDLE_FILE_INFORMATION information{};
    const bool isKnown = GetFileType(handle) == FILE_TYPE_DISK &&
                         GetFileInformationByHandle(handle, &information) != 0;
    CloseHandle(handle);
    if (!isKnown)
        return EKind::None;
    const bool isFolder = (information.dwFileAttributes & nativeFolderAttribute) != 0;
    return isFolder ? EKind::Folder : EKind::RegularFile;
}

}  // namespace

std::optional<SNativeFile> nativeFile(const std::string &path) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return {};
    FindClose(search);
    return SNativeFile{found.dwFileAttributes,
                       ticks(found.ftCreationTime),
                       ticks(found.ftLastAccessTime),
                       ticks(found.ftLastWriteTime),
                       joined(found.nFileSizeHigh, found.nFileSizeLow),
                       found.cFileName,
                       found.cAlternateFileName};
}

bool isNativeFolder(const std::string &path) {
    return kindAt(path) == EKind::Folder;
}

bool isNativeRegularFile(const std::string &path) {
    return !isAmongDevices(path) && kindAt(path) == EKind::RegularFile;
}

int nativeFileCount(const std::string &folder) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return 0;
    int count = 0;
    do {
        if ((found.dwFileAttributes & nativeFolderAttribute) == 0)
            ++count;
    } while (FindNextFileA(search, &found) != 0);
    FindClose(search);
    return count;
}
