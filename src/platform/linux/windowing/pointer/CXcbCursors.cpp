#include "platform/linux/windowing/pointer/CXcbCursors.h"

#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/pointer/SystemCursors.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

namespace {

// In place of the number of a system cursor
constexpr int inherited = 0;  // that of the parent
constexpr int invisible = -1;

int ownCursorOf(const CXcbWindow &window) {
    return window.isChild() ? inherited : systemArrow;
}

}  // namespace

CXcbCursors::CXcbCursors(CXcbConnection &connection)
    : m_connection(connection), m_theme(connection.get(), connection.getScreen()) {}

void CXcbCursors::set(void *cursor) {
    const auto *handle = static_cast<const SNativeCursor *>(cursor);
    const int number = handle != nullptr ? handle->systemCursor : invisible;
    if (m_isInMessage)
        m_chosen = number;
    else
        show(m_window, number);
}

void CXcbCursors::handleMessageStart(xcb_window_t window) {
    m_window = window;
    m_isInMessage = true;
    m_chosen.reset();
}

void CXcbCursors::handleMessageEnd(xcb_window_t window) {
    m_isInMessage = false;
    const CXcbWindow *shown = m_connection.windowOf(window);
    if (shown == nullptr)
        return;
    if (m_chosen)
        show(window, *m_chosen);
    else if (m_connection.pointer().getCapture() == XCB_NONE)
        show(window, ownCursorOf(*shown));
}

void CXcbCursors::show(xcb_window_t window, int cursor) {
    if (m_connection.windowOf(window) == nullptr)
        return;
    int &shown = m_shown.try_emplace(window, inherited).first->second;
    if (shown == cursor)
        return;
    shown = cursor;
    const std::uint32_t value = find(cursor);
    xcb_change_window_attributes(m_connection.get(), window, XCB_CW_CURSOR, &value);
    m_connection.flush();
}

xcb_cursor_t CXcbCursors::find(int cursor) {
    if (cursor == inherited)
        return XCB_CURSOR_NONE;
    const auto [place, isNew] = m_made.try_emplace(cursor, XCB_CURSOR_NONE);
    const SSystemCursor *system = findSystemCursor(cursor);
    if (isNew)
        place->second =
            system != nullptr ? m_theme.makeCursor(*system) : m_theme.makeInvisibleCursor();
    return place->second;
}

void CXcbCursors::forgetWindow(xcb_window_t window) {
    m_shown.erase(window);
}
