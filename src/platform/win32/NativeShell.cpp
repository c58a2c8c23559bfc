#include "platform/NativeShell.h"

#include <cstdint>
#include <windows.h>

bool openNativeDocument(const std::string &document) {
    const HINSTANCE result =
        ShellExecuteA(nullptr, "open", document.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<std::intptr_t>(result) >
           32;  // a code of its own below, no handle at all
}
