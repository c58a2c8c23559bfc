#include "platform/NativeLibrary.h"

#include <system_error>
#include <windows.h>

namespace {

void *opened(HMODULE library, std::string &reason) {
    if (library == nullptr)
        reason = std::system_category().message(static_cast<int>(GetLastError()));
    return library;
}

}  // namespace

void *openNativeLibrary(const std::string &path, std::string &reason) {
    return opened(LoadLibraryA(path.c_str()), reason);
}

void *openSystemLibrary(const std::string &name, std::string &reason) {
    return opened(LoadLibraryExA(name.c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32), reason);
}

void *nativeSymbol(void *library, const char *name) {
    return reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void closeNativeLibrary(void *library) {
    if (library != nullptr)
        FreeLibrary(static_cast<HMODULE>(library));
}
