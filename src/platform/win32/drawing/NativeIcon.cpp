#include "platform/NativeIcon.h"

#include "platform/NativeModule.h"

#include <cstdint>
#include <limits>
#include <windows.h>

void *loadNativeIcon(int resource) {
    if (resource < 0 || resource > std::numeric_limits<WORD>::max())
        return nullptr;
    return LoadIconA(static_cast<HINSTANCE>(nativeModuleHandle()), MAKEINTRESOURCEA(resource));
}

void *loadNativeIcon(const std::string &path, int index) {
    if (index < 0)  // for -1 the result would be the number of icons
        return nullptr;
    const HICON icon = ExtractIconA(static_cast<HINSTANCE>(nativeModuleHandle()), path.c_str(),
                                    static_cast<UINT>(index));
    constexpr std::uintptr_t noIconFile = 1;
    return reinterpret_cast<std::uintptr_t>(icon) == noIconFile ? nullptr : icon;
}

void destroyNativeIcon(void *icon) {
    if (icon != nullptr)
        DestroyIcon(static_cast<HICON>(icon));
}
