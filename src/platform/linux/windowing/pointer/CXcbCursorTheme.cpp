#include "platform/linux/windowing/pointer/CXcbCursorTheme.h"

#include "platform/NativeLibrary.h"
#include "platform/linux/windowing/pointer/SystemCursors.h"

#include <dlfcn.h>
#include <string_view>

namespace {

template <typename Function>
Function find(void *library, const char *name) {
    return library != nullptr ? reinterpret_cast<Function>(nativeSymbol(library, name)) : nullptr;
}

}  // namespace

// openNativeLibrary() does not search the library path.
CXcbCursorTheme::CXcbCursorTheme(xcb_connection_t *connection, const xcb_screen_t &screen,
                                 const char *library)
    : m_connection(connection), m_root(screen.root),
      m_library(dlopen(library, RTLD_NOW | RTLD_LOCAL)),
      m_load(find<Load>(m_library, "xcb_cursor_load_cursor")),
      m_free(find<Free>(m_library, "xcb_cursor_context_free")) {
    const auto make = find<New>(m_library, "xcb_cursor_context_new");
    if (make == nullptr || m_load == nullptr || m_free == nullptr)
        return;
    xcb_screen_t ownScreen = screen;  // only read, but not const there
    if (make(connection, &ownScreen, &m_context) < 0)
        m_context = nullptr;
}

CXcbCursorTheme::~CXcbCursorTheme() {
    if (m_context != nullptr)
        m_free(m_context);
    closeNativeLibrary(m_library);
}

xcb_cursor_t CXcbCursorTheme::makeCursor(const SSystemCursor &cursor) const {
    const xcb_cursor_t fromTheme = loadFromTheme(cursor);
    return fromTheme != XCB_NONE ? fromTheme : makeGlyph(cursor.glyph);
}

xcb_cursor_t CXcbCursorTheme::loadFromTheme(const SSystemCursor &cursor) const {
    if (m_context == nullptr)
        return XCB_NONE;
    for (const std::string_view name : cursor.names) {
        const xcb_cursor_t loaded = name.empty() ? XCB_NONE : m_load(m_context, name.data());
        if (loaded != XCB_NONE)
            return loaded;
    }
    return XCB_NONE;
}

xcb_cursor_t CXcbCursorTheme::makeGlyph(std::uint16_t glyph) const {
    constexpr std::uint16_t white = 0xFFFF;
    constexpr std::string_view name = "cursor";
    const xcb_font_t font = xcb_generate_id(m_connection);
    const xcb_cursor_t cursor = xcb_generate_id(m_connection);
    xcb_open_font(m_connection, font, name.size(), name.data());
    xcb_create_glyph_cursor(m_connection, cursor, font, font, glyph,
                            static_cast<std::uint16_t>(glyph + 1), 0, 0, 0, white, white, white);
    xcb_close_font(m_connection, font);
    return cursor;
}

xcb_cursor_t CXcbCursorTheme::makeInvisibleCursor() const {
    const xcb_pixmap_t mask = xcb_generate_id(m_connection);
    const xcb_gcontext_t clear = xcb_generate_id(m_connection);
    const xcb_cursor_t cursor = xcb_generate_id(m_connection);
    const std::uint32_t foreground = 0;
    const xcb_rectangle_t all = {0, 0, 1, 1};
    xcb_create_pixmap(m_connection, 1, mask, m_root, 1, 1);
    xcb_create_gc(m_connection, clear, mask, XCB_GC_FOREGROUND, &foreground);
    xcb_poly_fill_rectangle(m_connection, mask, clear, 1, &all);
    xcb_create_cursor(m_connection, cursor, mask, mask, 0, 0, 0, 0, 0, 0, 0, 0);
    xcb_free_gc(m_connection, clear);
    xcb_free_pixmap(m_connection, mask);
    return cursor;
}
