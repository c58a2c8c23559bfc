#pragma once

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/pointer/CXcbCursorTheme.h"

#include <map>
#include <optional>

/// What a cursor handle points to.
struct SNativeCursor {
    int systemCursor;
};

/// The mouse cursors of a connection, from the user's theme where there is one. Nothing here waits
/// for the server, except the constructor. [gui thread]
class CXcbCursors {
public:
    explicit CXcbCursors(CXcbConnection &connection);

    /// Shows a cursor in the window that has got the last movement.
    /// @param cursor  of loadNativeCursor().
    void set(void *cursor);
    // Around each movement: a window that sets no cursor shows its own, the arrow.
    void handleMessageStart(xcb_window_t window);
    void handleMessageEnd(xcb_window_t window);
    void forgetWindow(xcb_window_t window);

private:
    void show(xcb_window_t window, int cursor);
    xcb_cursor_t find(int cursor);

    CXcbConnection &m_connection;
    CXcbCursorTheme m_theme;
    std::map<int, xcb_cursor_t> m_made;   // by the number of the cursor
    std::map<xcb_window_t, int> m_shown;  // the number of the cursor of each window
    xcb_window_t m_window = XCB_NONE;     // that has got the last movement
    bool m_isInMessage = false;
    std::optional<int> m_chosen;  // in the message that is being handled
};
