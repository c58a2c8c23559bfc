#include "platform/linux/windowing/window/CXcbWindow.h"

std::unique_ptr<INativeWindow> createNativeWindow(const SNativeWindowOptions &options,
                                                  INativeWindowListener &listener,
                                                  std::string &reason) {
    reason.clear();
    auto window = std::make_unique<CXcbWindow>(listener);
    if (!window->create(options, reason))
        return nullptr;
    return window;
}
