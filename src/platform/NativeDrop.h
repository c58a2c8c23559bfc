#pragma once

#include "platform/SNativePoint.h"

#include <cstdint>
#include <string>
#include <vector>

/// Files that were dropped on a window. [gui thread]
struct SNativeDrop {
    std::vector<std::string> names;  ///< paths in the system's narrow encoding, below 2048 bytes
    SNativePoint position;           ///< in the window
};

/// @param wParam  of NativeDropFiles.
SNativeDrop readNativeDrop(std::uintptr_t wParam);
/// Frees what the message refers to. It cannot be read any more.
void finishNativeDrop(std::uintptr_t wParam);
