#include "platform/linux/windowing/pointer/CXcbGrab.h"

#include "platform/linux/windowing/connection/CXcbConnection.h"

#include <xcb/xcbext.h>

namespace {

constexpr std::uint16_t events = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                 XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW |
                                 XCB_EVENT_MASK_LEAVE_WINDOW;

/// Whether the server sent the event before it handled a request.
bool isBefore(const xcb_generic_event_t &event, std::uint32_t request) {
    return static_cast<std::int32_t>(event.full_sequence - request) < 0;
}

}  // namespace

void CXcbGrab::take(xcb_window_t window, bool sparesOwnWindows) {
    if (m_window == window && m_sparesOwnWindows == sparesOwnWindows)
        return;
    readAnswer();
    if (isTaken() && !m_isHeld && !m_isRefused)
        xcb_discard_reply(m_connection.get(), m_askedSequence);
    m_window = window;
    m_sparesOwnWindows = sparesOwnWindows;
    ask();
}

void CXcbGrab::ask() {
    m_isHeld = m_isRefused = false;
    m_askedSequence = xcb_grab_pointer(m_connection.get(), m_sparesOwnWindows ? 1 : 0, m_window,
                                       events, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
                                       XCB_NONE, XCB_CURRENT_TIME)
                          .sequence;
    m_connection.flush();
}

void CXcbGrab::end() {
    if (isTaken() && !m_isHeld && !m_isRefused)
        xcb_discard_reply(m_connection.get(), m_askedSequence);
    m_window = XCB_NONE;
    m_isHeld = m_isRefused = false;
    m_endSequence = xcb_ungrab_pointer(m_connection.get(), XCB_CURRENT_TIME).sequence;
    m_connection.flush();
}

void CXcbGrab::pump() {
    readAnswer();
    if (m_isRefused)
        ask();
}

void CXcbGrab::readAnswer() {
    if (!isTaken() || m_isHeld || m_isRefused)
        return;
    void *reply = nullptr;
    xcb_generic_error_t *error = nullptr;
    if (xcb_poll_for_reply(m_connection.get(), m_askedSequence, &reply, &error) == 0)
        return;
    const auto answer = ownReply(static_cast<xcb_grab_pointer_reply_t *>(reply));
    const auto failure = ownReply(error);
    m_isHeld = answer && answer->status == XCB_GRAB_STATUS_SUCCESS;
    m_isRefused = !m_isHeld;
}

bool CXcbGrab::mayCover(const xcb_generic_event_t &press) const {
    return isTaken() || isBefore(press, m_endSequence);
}

bool CXcbGrab::isBrokenBy(const xcb_generic_event_t &event) {
    const bool isCrossing = typeOf(event) == XCB_ENTER_NOTIFY || typeOf(event) == XCB_LEAVE_NOTIFY;
    if (!isCrossing || as<xcb_enter_notify_event_t>(event).mode != XCB_NOTIFY_MODE_UNGRAB)
        return false;
    readAnswer();
    return m_isHeld && !isBefore(event, m_askedSequence);
}
