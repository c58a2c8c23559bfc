#pragma once

#include <cstdint>
#include <windows.h>

/// Removes all hooks of the desktop that it finds: those of Wine 8, which accepts handles without
/// their upper half and gives out low ones first. @return how many there were.
inline int removeHooks() {
    int removed = 0;
    for (std::uintptr_t handle = 0x20; handle < 0x2000; handle += 2)
        removed += UnhookWindowsHookEx(reinterpret_cast<HHOOK>(handle)) ? 1 : 0;
    return removed;
}
