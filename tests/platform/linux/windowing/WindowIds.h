#pragma once

#include "platform/INativeWindow.h"

#include <xcb/xcb.h>

inline void *handleOf(xcb_window_t window) {
    return reinterpret_cast<void *>(std::uintptr_t{window});
}

inline xcb_window_t idOf(const void *handle) {
    return static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(handle));
}

inline xcb_window_t idOf(const INativeWindow &window) {
    return idOf(window.getHandle());
}
