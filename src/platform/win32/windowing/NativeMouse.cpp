#include "platform/NativeMouse.h"

#include <windows.h>

void *loadNativeCursor(int systemCursor) {
    return loadNativeCursor(nullptr, systemCursor);
}

void *loadNativeCursor(void *module, int resource) {
    return LoadCursorA(static_cast<HINSTANCE>(module), MAKEINTRESOURCEA(resource));
}

void *loadNativeAnimatedCursor(void *module, int resource) {
    const auto instance = static_cast<HINSTANCE>(module);
    HRSRC place = FindResourceA(instance, MAKEINTRESOURCEA(resource), "ANICURSORS");
    HGLOBAL data = place != nullptr ? LoadResource(instance, place) : nullptr;
    if (data == nullptr)
        return nullptr;
    constexpr DWORD version = 0x30000;
    return CreateIconFromResource(static_cast<BYTE *>(LockResource(data)),
                                  SizeofResource(instance, place), FALSE, version);
}

void destroyNativeCursor(void *cursor) {
    if (cursor != nullptr)
        DestroyCursor(static_cast<HCURSOR>(cursor));
}

void setNativeCursor(void *cursor) {
    SetCursor(static_cast<HCURSOR>(cursor));
}

void captureNativeMouse(void *window) {
    SetCapture(static_cast<HWND>(window));
}

void releaseNativeMouse() {
    ReleaseCapture();
}

void *nativeMouseCapture() {
    return GetCapture();
}

SNativePoint nativeMousePosition() {
    POINT position = {};
    GetCursorPos(&position);
    return {position.x, position.y};
}
