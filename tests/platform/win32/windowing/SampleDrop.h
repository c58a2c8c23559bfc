#pragma once

#include <algorithm>
#include <iterator>
#include <shlobj.h>
#include <windows.h>

/// @return what the system sends with WM_DROPFILES for C:\one.wav and C:\two.wav at 7, 8. The
///         receiver owns it.
inline HGLOBAL createSampleDrop() {
    constexpr char names[] = "C:\\one.wav\0C:\\two.wav\0";
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + sizeof names);
    auto *files = static_cast<DROPFILES *>(GlobalLock(memory));
    files->pFiles = sizeof(DROPFILES);
    files->pt = {7, 8};
    std::copy(std::begin(names), std::end(names), reinterpret_cast<char *>(files + 1));
    GlobalUnlock(memory);
    return memory;
}
