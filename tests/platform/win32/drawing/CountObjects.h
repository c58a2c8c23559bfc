#pragma once

#include <cstdint>
#include <windows.h>

/// @return how many GDI objects this process has.
inline int countObjects() {
    const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (count > 0)
        return static_cast<int>(count);
    // Wine 8 does not count, but accepts handles without their upper half.
    int found = 0;
    for (std::uintptr_t handle = 1; handle < 0x10000; ++handle)
        found += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0 ? 1 : 0;
    return found;
}
