#pragma once

#include "platform/INativeWindow.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"

/// Tells a host that embeds a window by the XEMBED protocol whether to show it.
void setXembedInfo(CXcbConnection &connection, xcb_window_t window, bool isShown);

/// Tells the window manager what a window is that is no child: its kind, its name, what it belongs
/// to.
/// @param owner  the top level window that it floats above; 0 for none.
void describeWindow(CXcbConnection &connection, xcb_window_t window,
                    const SNativeWindowOptions &options, xcb_window_t owner);

/// Tells the window manager a window's name, which it shows as the title.
void nameWindow(CXcbConnection &connection, xcb_window_t window, const std::string &title);

/// Tells the window manager where a window is to be, and that the user cannot resize it unless its
/// style says so.
void setSizeHints(CXcbConnection &connection, xcb_window_t window, std::uint32_t style,
                  const SNativeRect &bounds);

/// @param alpha  255 is opaque.
void setOpacity(CXcbConnection &connection, xcb_window_t window, std::uint8_t alpha);

// Messages to the window manager
void askForActivation(CXcbConnection &connection, xcb_window_t window);
void answerPing(CXcbConnection &connection, const xcb_client_message_event_t &ping);
/// Tells that a window was unmapped by its program, not made an icon.
void withdraw(CXcbConnection &connection, xcb_window_t window);

/// Waits for the server.
/// @return the window of its program that the window lies in and that the window manager knows.
xcb_window_t findTopLevel(CXcbConnection &connection, xcb_window_t window);
