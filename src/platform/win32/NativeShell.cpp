#include "platform/NativeShell.h"

#include <cstdint>
#include <windows.h>

bool openNativeDocument(const std::string &document) {
    const HINSTANCE result =
        ShellExecuteA(nullptr, "open", document.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    constexpr std::intptr_t lastError = 32;  // the result is a number, not a handle
    return reinterpret_cast<std::intptr_t>(result) > lastError;
}
