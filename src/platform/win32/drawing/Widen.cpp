#include "platform/win32/drawing/Widen.h"

#include <windows.h>

std::wstring widen(const char *text) {
    const int size = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);  // with the terminator
    if (size <= 1)
        return {};
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), size);
    wide.pop_back();
    return wide;
}
