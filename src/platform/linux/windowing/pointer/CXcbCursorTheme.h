#pragma once

#include <cstdint>
#include <xcb/xcb.h>

struct SSystemCursor;

/// Makes cursors: from the user's theme if libxcb-cursor is there, which knows the themes; else
/// from the font "cursor" of the server. [gui thread]
class CXcbCursorTheme {
public:
    /// Waits for the server.
    CXcbCursorTheme(xcb_connection_t *connection, const xcb_screen_t &screen,
                    const char *library = "libxcb-cursor.so.0");
    CXcbCursorTheme(const CXcbCursorTheme &) = delete;
    CXcbCursorTheme &operator=(const CXcbCursorTheme &) = delete;
    ~CXcbCursorTheme();

    // Neither waits for the server. The connection owns the cursors.
    xcb_cursor_t makeCursor(const SSystemCursor &cursor) const;
    xcb_cursor_t makeInvisibleCursor() const;

private:
    struct SContext;  // of libxcb-cursor
    using New = int (*)(xcb_connection_t *, xcb_screen_t *, SContext **);
    using Load = xcb_cursor_t (*)(SContext *, const char *);
    using Free = void (*)(SContext *);

    xcb_cursor_t loadFromTheme(const SSystemCursor &cursor) const;
    xcb_cursor_t makeGlyph(std::uint16_t glyph) const;

    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    void *m_library;
    Load m_load = nullptr;
    Free m_free = nullptr;
    SContext *m_context = nullptr;
};
