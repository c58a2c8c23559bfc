#pragma once

#include "platform/win32/windowing/Input.h"
#include "toolkit/windowing/CHeardWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// A window of 100 by 50 at 10, 20 in a host's window of 300 by 200 at 50, 60 on the screen, and
/// what listens to it. The tests share the host: without a window manager, Wine takes two seconds
/// to end a window that the screen shows.
class CNativeWindowTest : public testing::Test, public CHeardWindow {
protected:
    static void SetUpTestSuite() {
        host = createHost(nullptr, WS_POPUP | WS_VISIBLE);
        SetForegroundWindow(host);
    }
    static void TearDownTestSuite() { DestroyWindow(host); }
    /// @return a window of 300 by 200 that keeps all messages to itself.
    static HWND createHost(HWND parent, DWORD style) {
        // Without SS_NOTIFY, the mouse would go through it.
        return CreateWindowExA(0, "STATIC", "host", style | SS_NOTIFY, 50, 60, 300, 200, parent,
                               nullptr, nullptr, nullptr);
    }

    CNativeWindowTest() {
        SetFocus(host);
        moveMouse(outside);
        handleMessages();
    }
    ~CNativeWindowTest() override { ReleaseCapture(); }

    /// Opens a window in a host's window.
    static std::unique_ptr<CWindow> open(const CRect &area, HWND parent = host) {
        auto window = std::make_unique<CWindow>(area);
        openInNative(*window, parent);
        return window;
    }
    /// Opens the window of the test and begins to listen.
    void open() {
        window = open(CRect(10, 20, 100, 50));
        listenTo(*window);
        handleMessages();
        log.clear();
    }
    static HWND handleOf(const CWindow &window) {
        return static_cast<HWND>(window.getWindowHandle()->native);
    }

    void deliverMessages() override { handleMessages(); }
    /// Repeats an action and handles messages until an event is heard.
    /// @return whether that happened within ten seconds.
    template <typename Action>
    bool repeatUntil(const std::string &event, Action action) {
        const ULONGLONG deadline = GetTickCount64() + 10'000;
        while (GetTickCount64() < deadline) {
            action();
            handleMessages();
            if (std::find(log.begin(), log.end(), event) != log.end())
                return true;
        }
        return false;
    }
    bool waitFor(const std::string &event) {
        return repeatUntil(event,
                           [] { MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT); });
    }

    static constexpr SNativePoint outside = {55, 65}, inside = {65, 87};  // 5, 7 in the window
    static inline HWND host = nullptr;
};
