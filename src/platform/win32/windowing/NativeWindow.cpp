#include "platform/win32/windowing/CWin32Window.h"
#include "platform/win32/windowing/WindowClass.h"

#include <system_error>

std::unique_ptr<INativeWindow> createNativeWindow(const SNativeWindowOptions &options,
                                                  INativeWindowListener &listener,
                                                  std::string &reason) {
    reason.clear();
    if (!registerWindowClass(options))
        return nullptr;
    auto window = std::make_unique<CWin32Window>(listener);
    if (!window->create(options)) {
        reason = std::system_category().message(static_cast<int>(GetLastError()));
        return nullptr;
    }
    return window;
}
