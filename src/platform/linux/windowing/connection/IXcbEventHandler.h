#pragma once

#include <xcb/xcb.h>

/// A part of a connection that takes some of its events. [gui thread]
class IXcbEventHandler {
public:
    virtual ~IXcbEventHandler() = default;

    /// May report to a window, whose handlers may destroy any window of the connection, but not the
    /// connection itself, which its pump holds.
    /// @return true if nobody else is to see the event.
    virtual bool handleEvent(const xcb_generic_event_t &event) = 0;
    /// A window of the connection is being destroyed, and is not in its table any more.
    virtual void forgetWindow(xcb_window_t window) = 0;
};
