#pragma once

#include "platform/linux/windowing/CDisplayFixture.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/windowing/CWindowSpy.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

constexpr SNativeRect hostArea = {50, 60, 350, 260};

/// An editor of 100 by 50 at 60, 80 of the screen, in a host's window. The pointer starts outside
/// of both, at 500, 400.
class CHostFixture : public CDisplayFixture {
protected:
    CHostFixture() {
        client->movePointer(500, 400);
        editor.options.parent = handleOf(host);
        editor.create();
        pumpAll(*client);
        editor.messages.clear();
    }
    ~CHostFixture() override {
        client->release(1);
        client->destroyWindow(host);
    }

    /// Lets the user do something. @return what the window has been told of it.
    template <typename Act>
    std::vector<CWindowSpy::SMessage> tellsOf(CWindowSpy &window, Act act) {
        window.messages.clear();
        act();
        pumpAll(*client);
        return window.messages;
    }
    /// Whether anybody else can have the pointer, now or soon.
    static bool isPointerFree() {
        return pumpUntil([] { return client->canGrabPointer(); });
    }
    static bool isPointerHeld() {
        pumpAll(*client);
        return !client->canGrabPointer();
    }
    CXcbConnection &connection() { return *CXcbConnection::find(idOf(*editor.window)); }

    xcb_window_t host = client->createWindow(hostArea);
    CWindowSpy editor;
};

inline std::int16_t lowOf(std::intptr_t packed) {
    return static_cast<std::int16_t>(packed);
}

inline std::int16_t highOf(std::intptr_t packed) {
    return static_cast<std::int16_t>(packed >> 16);
}

/// The messages of the mouse and of the focus.
struct SMouseMessage {
    unsigned number;
    int x, y;

    bool operator==(const SMouseMessage &) const = default;
    friend void PrintTo(const SMouseMessage &message, std::ostream *out) {
        *out << message.number << " at " << message.x << ", " << message.y;
    }
};

inline std::vector<SMouseMessage> mouseMessages(const std::vector<CWindowSpy::SMessage> &all) {
    std::vector<SMouseMessage> found;
    for (const auto &[number, wParam, lParam] : all)
        if ((number >= NativeMouseMove && number <= NativeMouseWheel) || number == NativeMouseLeave)
            found.push_back({number, lowOf(lParam), highOf(lParam)});
    return found;
}

/// @return the numbers of NativeSetFocus and NativeKillFocus as they came.
inline std::vector<unsigned> focusMessages(const std::vector<CWindowSpy::SMessage> &all) {
    std::vector<unsigned> found;
    for (const CWindowSpy::SMessage &message : all)
        if (message.number == NativeSetFocus || message.number == NativeKillFocus)
            found.push_back(message.number);
    return found;
}
