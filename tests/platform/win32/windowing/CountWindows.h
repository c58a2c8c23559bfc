#pragma once

#include <cstdint>
#include <windows.h>

/// @return how many USER objects this process has: windows, menus, cursors, hooks ... On Wine 8,
///         which does not count, how many windows the desktop has.
inline int countWindows() {
    const DWORD count = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    if (count > 0)
        return static_cast<int>(count);
    // Wine accepts handles without their upper half and gives out low ones first.
    int found = 0;
    for (std::uintptr_t handle = 0x20; handle < 0x2000; handle += 2)
        found += IsWindow(reinterpret_cast<HWND>(handle)) ? 1 : 0;
    return found;
}
