#include "platform/win32/windowing/WindowClass.h"

#include "platform/NativeModule.h"
#include "platform/win32/windowing/CWin32Window.h"

bool registerWindowClass(const SNativeWindowOptions &options) {
    const auto instance = static_cast<HINSTANCE>(nativeModuleHandle());
    WNDCLASSEXA description = {};
    description.cbSize = sizeof description;
    if (GetClassInfoExA(instance, options.className.c_str(), &description))
        return true;
    description = {};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS | (options.hasShadow ? CS_DROPSHADOW : 0u);
    description.lpfnWndProc = CWin32Window::procedure;
    description.hIcon = static_cast<HICON>(options.icon);
    description.hIconSm = static_cast<HICON>(options.icon);
    description.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));
    description.lpszClassName = options.className.c_str();
    description.hInstance = instance;
    return RegisterClassExA(&description) != 0;
}

void unregisterWindowClass(const std::string &className) {
    UnregisterClassA(className.c_str(), static_cast<HINSTANCE>(nativeModuleHandle()));
}
