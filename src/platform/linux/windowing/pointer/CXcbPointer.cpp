#include "platform/linux/windowing/pointer/CXcbPointer.h"

#include "platform/linux/windowing/pointer/CXcbCursors.h"
#include "platform/linux/windowing/window/CXcbPopups.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <utility>

namespace {

constexpr int wheelUp = 4, wheelDown = 5, wheelLeft = 6, wheelRight = 7;

struct SButtonMessages {
    int button;
    unsigned down, up;
};
constexpr SButtonMessages buttons[] = {
    {XCB_BUTTON_INDEX_1, NativeLeftDown, NativeLeftUp},
    {XCB_BUTTON_INDEX_2, NativeMiddleDown, NativeMiddleUp},
    {XCB_BUTTON_INDEX_3, NativeRightDown, NativeRightUp},
};

const SButtonMessages *messagesOf(int button) {
    for (const SButtonMessages &messages : buttons)
        if (messages.button == button)
            return &messages;
    return nullptr;
}

constexpr std::uint16_t allButtons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;

/// The bit of a button in an event's state; 0 for the wheel and for buttons that have none.
std::uint16_t bitOf(int button) {
    const int bit = button >= 1 && button <= 5 ? XCB_BUTTON_MASK_1 << (button - 1) : 0;
    return static_cast<std::uint16_t>(bit & allButtons);
}

std::intptr_t pack(SNativePoint position) {
    const auto low = static_cast<std::uint16_t>(position.x);
    const auto high = static_cast<std::uint16_t>(position.y);
    return static_cast<std::intptr_t>(low | static_cast<std::uint32_t>(high) << 16);
}

/// What keys, buttons, motions and crossings have in common lies at the same place in all of them.
const xcb_motion_notify_event_t &asMotion(const xcb_generic_event_t &event) {
    return as<xcb_motion_notify_event_t>(event);
}

template <typename Event>
const xcb_motion_notify_event_t &asMotion(const Event &event) {
    return reinterpret_cast<const xcb_motion_notify_event_t &>(event);
}

SNativePoint screenPositionOf(const xcb_motion_notify_event_t &event) {
    return {event.root_x, event.root_y};
}

}  // namespace

// Events

bool CXcbPointer::handleEvent(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
        note(asMotion(event));
        return false;
    case XCB_BUTTON_PRESS:
        note(asMotion(event));
        if (m_down == 0)
            m_isPressGrabbed = !m_grab.mayCover(event);
        handlePress(as<xcb_button_press_event_t>(event));
        break;
    case XCB_BUTTON_RELEASE:
        note(asMotion(event));
        handleRelease(as<xcb_button_release_event_t>(event));
        break;
    case XCB_MOTION_NOTIFY:
        note(asMotion(event));
        handleMotion(as<xcb_motion_notify_event_t>(event));
        break;
    case XCB_ENTER_NOTIFY:
        note(asMotion(event));
        handleEnter(as<xcb_enter_notify_event_t>(event));
        break;
    case XCB_LEAVE_NOTIFY:
        note(asMotion(event));
        handleLeave(as<xcb_leave_notify_event_t>(event));
        break;
    default:
        return false;
    }
    reportLeave();
    return true;
}

void CXcbPointer::note(const xcb_motion_notify_event_t &event) {
    m_position = screenPositionOf(event);
    m_state = event.state;
    m_down = event.state & allButtons;
    if (CXcbWindow *window = m_connection.windowOf(event.event))
        window->setScreenOrigin({event.root_x - event.event_x, event.root_y - event.event_y});
}

void CXcbPointer::handlePress(const xcb_button_press_event_t &event) {
    sendLostReleases(asMotion(event));
    m_down |= bitOf(event.detail);
    if (event.detail >= wheelUp && event.detail <= wheelRight) {
        handleWheel(event);
        return;
    }
    const CXcbWindow *window = receiverOf(asMotion(event));
    const SButtonMessages *messages = messagesOf(event.detail);
    if (window == nullptr || messages == nullptr)
        return;
    const bool isSecond = m_doubleClick.handlePress(
        {window->getId(), event.detail, screenPositionOf(asMotion(event)), event.time});
    m_downSent |= bitOf(event.detail);
    // There is no message for a double click of the right button.
    const bool isDouble = isSecond && messages->down == NativeLeftDown;
    send(isDouble ? unsigned{NativeDoubleClick} : messages->down, asMotion(event));
}

void CXcbPointer::handleRelease(const xcb_button_release_event_t &event) {
    const auto bit = bitOf(event.detail);
    m_down &= static_cast<std::uint16_t>(~bit);
    m_downSent &= static_cast<std::uint16_t>(~bit);
    if (const SButtonMessages *messages = messagesOf(event.detail))
        send(messages->up, asMotion(event));
}

void CXcbPointer::handleMotion(const xcb_motion_notify_event_t &event) {
    sendLostReleases(event);
    const bool isReported = m_entered.window == event.event && m_entered.time == event.time &&
                            m_entered.position == screenPositionOf(event);
    if (!isReported)
        sendMotion(event);
}

void CXcbPointer::handleEnter(const xcb_enter_notify_event_t &event) {
    const bool isOnWayToChild = event.detail == XCB_NOTIFY_DETAIL_VIRTUAL ||
                                event.detail == XCB_NOTIFY_DETAIL_NONLINEAR_VIRTUAL;
    if (event.mode == XCB_NOTIFY_MODE_GRAB || isOnWayToChild)
        return;
    sendLostReleases(asMotion(event));
    m_entered = {event.event, screenPositionOf(asMotion(event)), event.time};
    sendMotion(asMotion(event));
}

void CXcbPointer::handleLeave(const xcb_leave_notify_event_t &event) {
    if (event.mode != XCB_NOTIFY_MODE_GRAB && event.detail != XCB_NOTIFY_DETAIL_INFERIOR &&
        event.event == m_tracked)
        m_hasLeft = true;
}

void CXcbPointer::handleWheel(const xcb_button_press_event_t &event) {
    CXcbWindow *window = receiverOf(asMotion(event));
    if (window == nullptr || event.detail >= wheelLeft)
        return;
    const int movement = event.detail == wheelUp ? 120 : -120;
    const std::uintptr_t wParam = static_cast<std::uint32_t>(movement) << 16;
    window->report(NativeMouseWheel, wParam, pack(m_position));
}

// Messages

// If the window was unmapped during the drag, or the grab was taken from us, the release went to
// another client.
void CXcbPointer::sendLostReleases(const xcb_motion_notify_event_t &event) {
    for (const auto &[button, down, up] : buttons) {
        const std::uint16_t bit = bitOf(button);
        if ((m_downSent & ~event.state & bit) == 0)
            continue;
        m_downSent &= static_cast<std::uint16_t>(~bit);
        send(up, event);
    }
}

void CXcbPointer::sendMotion(const xcb_motion_notify_event_t &event) {
    if (event.event == m_tracked && isInside(event))
        m_hasLeft = false;
    const CXcbWindow *window = receiverOf(event);
    if (window == nullptr)
        return;
    const xcb_window_t id = window->getId();
    m_connection.cursors().handleMessageStart(id);
    send(NativeMouseMove, event);
    m_connection.cursors().handleMessageEnd(id);
}

void CXcbPointer::send(unsigned message, const xcb_motion_notify_event_t &event) {
    if (CXcbWindow *window = receiverOf(event))
        window->report(message, 0, pack(positionIn(*window, event)));
}

/// Without a capture, only what happens inside a window concerns it: during a grab, the server also
/// reports the rest.
CXcbWindow *CXcbPointer::receiverOf(const xcb_motion_notify_event_t &event) const {
    if (m_capture != XCB_NONE)
        return m_connection.windowOf(m_capture);
    return isInside(event) ? m_connection.windowOf(event.event) : nullptr;
}

bool CXcbPointer::isInside(const xcb_motion_notify_event_t &event) const {
    const CXcbWindow *window = m_connection.windowOf(event.event);
    if (window == nullptr)
        return false;
    const auto [left, top, right, bottom] = window->getScreenArea();
    return event.event_x >= 0 && event.event_x < right - left && event.event_y >= 0 &&
           event.event_y < bottom - top;
}

SNativePoint CXcbPointer::positionIn(CXcbWindow &window,
                                     const xcb_motion_notify_event_t &event) const {
    if (window.getId() == event.event)
        return {event.event_x, event.event_y};
    const SNativeRect area = window.getScreenArea();
    return {event.root_x - area.left, event.root_y - area.top};
}

// Leaving

void CXcbPointer::trackLeave(xcb_window_t window) {
    if (m_tracked != window)
        m_hasLeft = false;
    m_tracked = window;
}

// As on Windows, the mouse does not leave a window that has captured it.
void CXcbPointer::reportLeave() {
    if (!m_hasLeft || m_capture != XCB_NONE)
        return;
    m_hasLeft = false;
    if (CXcbWindow *window = m_connection.windowOf(std::exchange(m_tracked, XCB_NONE)))
        window->report(NativeMouseLeave);
}

// Capture

void CXcbPointer::capture(xcb_window_t window) {
    if (m_connection.windowOf(window) == nullptr)
        return;
    m_capture = window;
    if (m_down != 0 && !m_isPressGrabbed && !m_connection.popups().hasFocus())
        m_grab.take(window, false);
}

void CXcbPointer::release() {
    m_capture = XCB_NONE;
    if (m_connection.popups().hasFocus())
        return;
    m_isPressGrabbed = false;
    if (m_grab.isTaken() || m_down != 0)
        m_grab.end();
}

void CXcbPointer::endPopupGrab() {
    m_isPressGrabbed = false;
    if (m_capture != XCB_NONE && m_down != 0)
        m_grab.take(m_capture, false);
    else
        m_grab.end();
}

void CXcbPointer::forgetWindow(xcb_window_t window) {
    if (window == m_tracked) {
        m_tracked = XCB_NONE;
        m_hasLeft = false;
    }
    if (window == m_capture)
        release();
}

// What others ask for

namespace {

TXcbReply<xcb_query_pointer_reply_t> askForPointer(const CXcbConnection &connection) {
    const auto cookie = xcb_query_pointer(connection.get(), connection.getScreen().root);
    return ownReply(xcb_query_pointer_reply(connection.get(), cookie, nullptr));
}

}  // namespace

SNativePoint CXcbPointer::getPosition() const {
    if (m_connection.isPumping())
        return m_position;
    const auto pointer = askForPointer(m_connection);
    return pointer ? SNativePoint{pointer->root_x, pointer->root_y} : SNativePoint();
}

std::uint16_t CXcbPointer::getState() const {
    if (m_connection.isPumping())
        return m_state;
    const auto pointer = askForPointer(m_connection);
    return pointer ? pointer->mask : std::uint16_t{0};
}
