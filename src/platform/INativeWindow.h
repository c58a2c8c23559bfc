#pragma once

#include "platform/ENativeMessage.h"
#include "platform/INativeSurface.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

/// What a window reports. Each operation may destroy the window, even in the middle of a paint(),
/// and may lead to further reports before it returns. [gui thread]
class INativeWindowListener {
public:
    /// @param message  one of ENativeMessage; on Windows also any other that the system sends.
    ///                 Linux sends neither NativeEraseBackground nor NativeTimer.
    /// @return the result of the message; nothing for what the system does by default.
    virtual std::optional<std::intptr_t> handleMessage(unsigned message, std::uintptr_t wParam,
                                                       std::intptr_t lParam) = 0;
    virtual void handleTimer(int id) = 0;
    /// The system has taken the window away, for instance because the host destroyed the parent
    /// first. The operations of the window do nothing from now on. Not called by its destructor.
    virtual void handleNativeDestroyed() = 0;

protected:
    ~INativeWindowListener() = default;
};

/// A window of the system. Its destructor destroys it. [gui thread]
class INativeWindow {
public:
    virtual ~INativeWindow() = default;

    virtual void *getHandle() const = 0;  ///< HWND or X window id; null once it is gone
    /// @return where the window is on the screen. All zero if it is gone.
    virtual SNativeRect getScreenArea() const = 0;

    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void enable(bool isEnabled) = 0;  ///< a disabled window gets neither mouse nor keys
    /// Brings the window's program to the front and gives it the keyboard, where the system allows.
    virtual void bringToFront() = 0;
    /// @param title  in the system's narrow encoding. Children have none to be seen.
    virtual void setTitle(const std::string &title) = 0;
    /// @param alpha  255 is opaque. Only popups and top level windows can be translucent.
    virtual void setAlpha(std::uint8_t alpha) = 0;

    // Both report NativeMove and NativeSize as far as something changes. Positions count as in
    // SNativeWindowOptions::bounds.
    virtual void move(SNativePoint position) = 0;  ///< keeps the size
    virtual void moveAndResize(const SNativeRect &bounds) = 0;

    virtual void invalidate(const SNativeRect &area) = 0;  ///< NativePaint follows soon
    virtual void update() = 0;  ///< reports NativePaint at once if something is invalid
    using PaintCallback = std::function<void(INativePaintTarget &, const SNativeRect &)>;
    /// For use in NativePaint: calls the function with the window to paint on and the rectangle
    /// around all that is invalid, which is then valid, even if the function throws. Not called if
    /// the window is gone.
    virtual void paint(const PaintCallback &callback) = 0;

    /// Reports handleTimer(id) until stopped; a running id starts anew.
    /// @return true if the timer runs, false if id or milliseconds is below 1.
    virtual bool startTimer(int id, int milliseconds) = 0;
    virtual void stopTimer(int id) = 0;  ///< safe inside handleTimer(), and for an idle id

    /// Handles what the system has reported since the last call, runs the timers that are due and
    /// paints what is invalid. May destroy the window. Windows leaves this to the message loop of
    /// the thread, so that it does nothing there.
    virtual void pump() = 0;

    virtual void trackMouseLeave() = 0;  ///< reports NativeMouseLeave once, when the mouse leaves
    /// From now on, this window gets the wheel messages over it that a host would keep for itself:
    /// as NativeMouseWheel, where a result of 0 ends the search for a receiver. One window of the
    /// process has them at a time. Linux has no such hosts, so that it does nothing there.
    virtual void hookWheel() = 0;
    virtual void unhookWheel() = 0;  ///< ignored if the wheel is not hooked
};

/// What a window is created with.
struct SNativeWindowOptions {
    /// Identifies the kind of window. Windows of the same kind share icon and shadow.
    std::string className;
    std::string title;  ///< in the system's narrow encoding
    /// Styles and extended styles of Windows. With the style bit 0x40000000, the window is a child
    /// of the parent; otherwise it floats above it.
    std::uint32_t style = 0, extendedStyle = 0;
    bool hasShadow = false;
    void *icon = nullptr;    ///< see NativeIcon.h; not owned
    void *parent = nullptr;  ///< HWND or X window id; null for none
    SNativeRect bounds;      ///< in the parent; of a popup, on the screen
};

/// Creates a window, which is hidden unless the styles say that it is visible. The listener gets
/// messages already during this call.
/// @param listener  must outlive the window.
/// @param reason    receives the system's error message if the result is null; "" if the system
///                  refused the kind of window.
/// @return null if the system refuses, for instance for lack of a display.
std::unique_ptr<INativeWindow> createNativeWindow(const SNativeWindowOptions &options,
                                                  INativeWindowListener &listener,
                                                  std::string &reason);
