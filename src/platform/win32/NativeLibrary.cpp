#include "platform/NativeLibrary.h"

#include <system_error>
#include <windows.h>

void *openNativeLibrary(const std::string &path, std::string &reason) {
    HMODULE library = LoadLibraryA(path.c_str());
    if (library == nullptr)
        reason = std::system_category().message(static_cast<int>(GetLastError()));
    return library;
}

void *nativeSymbol(void *library, const char *name) {
    return reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void closeNativeLibrary(void *library) {
    if (library != nullptr)
        FreeLibrary(static_cast<HMODULE>(library));
}
