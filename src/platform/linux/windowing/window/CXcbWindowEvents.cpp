// What a window reports, and the events that concern the window itself.
#include "platform/linux/windowing/connection/XcbProperties.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <utility>

namespace {

/// @return whether the first request of a connection was sent before the second.
bool isEarlier(unsigned first, unsigned second) {
    return static_cast<int>(first - second) < 0;
}

bool isInput(unsigned message) {
    const bool isKey = message == NativeKeyDown || message == NativeKeyUp;
    return isKey || (message >= NativeMouseMove && message <= NativeMouseWheel);
}

std::intptr_t packed(std::int32_t low, std::int32_t high) {
    return static_cast<std::intptr_t>(static_cast<std::uint16_t>(low)) |
           static_cast<std::intptr_t>(static_cast<std::uint16_t>(high)) << 16;
}

}  // namespace

// Reports

std::optional<std::intptr_t> CXcbWindow::report(unsigned message, std::uintptr_t wParam,
                                                std::intptr_t lParam) {
    if (!m_isEnabled && isInput(message))
        return std::nullopt;
    return m_listener.handleMessage(message, wParam, lParam);
}

void CXcbWindow::reportMove() {
    report(NativeMove, 0, packed(m_bounds.left, m_bounds.top));
}

void CXcbWindow::reportSize() {
    const auto [left, top, right, bottom] = getArea();
    report(NativeSize, 0, packed(right, bottom));
}

bool CXcbWindow::reportDestroy() {
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    if (id == XCB_NONE || std::exchange(m_isDestroyReported, true))
        return id != XCB_NONE;
    report(NativeDestroy);
    connection->endWindowsOf(id);
    return connection->windowOf(id) != nullptr;
}

// Ends

void CXcbWindow::end() {
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    if (!reportDestroy())
        return;
    xcb_destroy_window(connection->get(), id);
    handleEnd();
}

// Only the host does this, with a window around this one. Popups float above that, so they go too.
void CXcbWindow::handleDestroyed() {
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    if (reportDestroy())
        handleEnd();
    connection->endWindowsOpenedBy(id);
}

// Other windows may hear that they have the focus back. Their listeners may destroy this one.
void CXcbWindow::handleEnd() {
    const std::weak_ptr<const int> life = m_life;
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    connection->removeWindow(std::exchange(m_id, XCB_NONE));
    if (life.expired())
        return;
    m_timers.stopAll();
    m_listener.handleNativeDestroyed();
}

// Events

void CXcbWindow::handleEvent(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_EXPOSE:
        handleExpose(event);
        break;
    case XCB_CONFIGURE_NOTIFY:
        handleConfigure(event);
        break;
    case XCB_REPARENT_NOTIFY:
        handleReparent(as<xcb_reparent_notify_event_t>(event));
        break;
    case XCB_MAP_NOTIFY:
        if (as<xcb_map_notify_event_t>(event).window == m_id)
            m_isMapped = true;
        break;
    case XCB_UNMAP_NOTIFY:
        if (as<xcb_unmap_notify_event_t>(event).window == m_id)
            m_isMapped = false;
        break;
    case XCB_DESTROY_NOTIFY:
        if (as<xcb_destroy_notify_event_t>(event).window == m_id)
            handleDestroyed();
        break;
    case XCB_CLIENT_MESSAGE:
        handleClientMessage(as<xcb_client_message_event_t>(event));
        break;
    default:
        break;
    }
}

void CXcbWindow::handleExpose(const xcb_generic_event_t &event) {
    const auto &expose = as<xcb_expose_event_t>(event);
    // What the window was painted with after the exposure is there to stay.
    if (expose.window == m_id && !isEarlier(event.full_sequence, m_painted))
        invalidate({expose.x, expose.y, expose.x + expose.width, expose.y + expose.height});
}

void CXcbWindow::handleConfigure(const xcb_generic_event_t &event) {
    const auto &configure = as<xcb_configure_notify_event_t>(event);
    if (configure.window != m_id || isEarlier(event.full_sequence, m_configured))
        return;
    SNativePoint position = {configure.x, configure.y};
    // In a frame only the window manager's own events tell the position on the screen.
    const bool isSent = event.response_type != XCB_CONFIGURE_NOTIFY;
    if (m_isFramed && !isSent)
        position = {m_bounds.left, m_bounds.top};
    takeBounds(
        {position.x, position.y, position.x + configure.width, position.y + configure.height});
}

void CXcbWindow::handleReparent(const xcb_reparent_notify_event_t &event) {
    if (event.window != m_id)
        return;
    m_isFramed = m_kind == EKind::TopLevel && event.parent != m_connection->getScreen().root;
    if (!m_isFramed)
        takeBounds({event.x, event.y, event.x + m_bounds.right - m_bounds.left,
                    event.y + m_bounds.bottom - m_bounds.top});
}

void CXcbWindow::handleClientMessage(const xcb_client_message_event_t &event) {
    const SXcbAtoms &atoms = m_connection->getAtoms();
    if (event.window != m_id || event.type != atoms.wmProtocols || event.format != 32)
        return;
    if (event.data.data32[0] == atoms.netWmPing)
        answerPing(*m_connection, event);
    if (event.data.data32[0] == atoms.wmDeleteWindow)
        close();
}

void CXcbWindow::close() {
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    const bool isAnswered = report(NativeClose).has_value();
    if (!isAnswered && connection->windowOf(id) != nullptr)
        end();
}
