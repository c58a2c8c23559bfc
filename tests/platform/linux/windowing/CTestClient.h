#pragma once

#include "platform/SNativeRect.h"

#include <cstdint>
#include <functional>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

/// A program beside ours, which acts as the host and as the user: it owns windows, moves the
/// pointer and presses buttons and keys.
class CTestClient {
public:
    CTestClient();  ///< connects to $DISPLAY
    CTestClient(const CTestClient &) = delete;
    CTestClient &operator=(const CTestClient &) = delete;
    ~CTestClient();  ///< releases buttons and keys that are still pressed

    xcb_connection_t *get() const { return m_connection; }
    const xcb_screen_t &getScreen() const { return *m_screen; }

    /// @param parent  0 for the root window. Unless the window is managed, it is override-redirect.
    xcb_window_t createWindow(const SNativeRect &area, xcb_window_t parent = 0,
                              bool isManaged = false);
    void destroyWindow(xcb_window_t window);

    void movePointer(int x, int y);  ///< on the screen
    void press(int button);
    void release(int button);
    void click(int button, int times = 1);
    void pressKey(xcb_keysym_t key);  ///< a key of the first level of the layout
    void releaseKey(xcb_keysym_t key);
    void typeKey(xcb_keysym_t key);
    void focus(xcb_window_t window);  ///< gives a window the keyboard

    /// Waits until the server has handled all that was asked for.
    void synchronise();
    /// @return where a window is on the screen.
    SNativeRect areaOf(xcb_window_t window);
    /// @return the pixel of a window, 0xRRGGBB.
    std::uint32_t pixelOf(xcb_window_t window, int x, int y);
    /// @return whether nobody else holds the pointer, or the keyboard.
    bool canGrabPointer();
    bool canGrabKeyboard();

private:
    xcb_keycode_t keycodeOf(xcb_keysym_t key);
    void fake(std::uint8_t type, int detail, int x = 0, int y = 0);

    xcb_connection_t *m_connection;
    const xcb_screen_t *m_screen;
    std::uint8_t m_keysDown[256] = {};
    std::uint8_t m_buttonsDown[16] = {};
};

/// Pumps all connections of the process until a condition is met.
/// @return false if it is not met within five seconds.
bool pumpUntil(const std::function<bool()> &isMet);
/// Pumps all connections of the process once with all that has happened so far, and waits until
/// the server has done what they asked for.
void pumpAll(CTestClient &client);
