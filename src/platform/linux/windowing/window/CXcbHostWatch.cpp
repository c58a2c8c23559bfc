#include "platform/linux/windowing/window/CXcbHostWatch.h"

#include "platform/linux/windowing/connection/CXcbConnection.h"

#include <utility>
#include <xcb/xcbext.h>

void CXcbHostWatch::start(xcb_window_t topLevel) {
    stop();
    m_window = topLevel;
    if (m_window == XCB_NONE)
        return;
    select(XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    askForPosition();
}

void CXcbHostWatch::stop() {
    if (m_window != XCB_NONE)
        select(XCB_EVENT_MASK_NO_EVENT);
    forgetQuestion();
    m_window = XCB_NONE;
    m_start.reset();
}

void CXcbHostWatch::select(std::uint32_t events) {
    // A window of ours has these events anyway.
    if (m_connection.windowOf(m_window) == nullptr)
        xcb_change_window_attributes(m_connection.get(), m_window, XCB_CW_EVENT_MASK, &events);
}

bool CXcbHostWatch::isLostBy(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_FOCUS_OUT: {
        // A keyboard grab leaves the focus where it is, and so does a change to a window inside.
        const auto &focus = as<xcb_focus_out_event_t>(event);
        return focus.event == m_window && focus.mode != XCB_NOTIFY_MODE_GRAB &&
               focus.mode != XCB_NOTIFY_MODE_UNGRAB && focus.detail != XCB_NOTIFY_DETAIL_INFERIOR &&
               focus.detail != XCB_NOTIFY_DETAIL_POINTER;
    }
    case XCB_UNMAP_NOTIFY:  // comes also if the window is destroyed
        return as<xcb_unmap_notify_event_t>(event).window == m_window;
    case XCB_CONFIGURE_NOTIFY:
        // Some window managers send it when nothing has changed, and the position in it may be
        // that in the frame.
        if (as<xcb_configure_notify_event_t>(event).window == m_window)
            askForPosition();
        return false;
    default:
        return false;
    }
}

bool CXcbHostWatch::hasMoved() {
    const std::optional<SNativePoint> position = readPosition();
    if (!position)
        return false;
    if (std::exchange(m_asksAgain, false))
        askForPosition();
    if (!m_start)
        m_start = position;
    return *position != *m_start;
}

void CXcbHostWatch::askForPosition() {
    if (m_question) {
        m_asksAgain = true;
        return;
    }
    m_question =
        xcb_translate_coordinates(m_connection.get(), m_window, m_connection.getScreen().root, 0, 0)
            .sequence;
}

void CXcbHostWatch::forgetQuestion() {
    if (m_question)
        xcb_discard_reply(m_connection.get(), *m_question);
    m_question.reset();
    m_asksAgain = false;
}

std::optional<SNativePoint> CXcbHostWatch::readPosition() {
    void *reply = nullptr;
    xcb_generic_error_t *error = nullptr;
    if (!m_question || xcb_poll_for_reply(m_connection.get(), *m_question, &reply, &error) == 0)
        return std::nullopt;
    m_question.reset();
    const auto answer = ownReply(static_cast<xcb_translate_coordinates_reply_t *>(reply));
    const auto failure = ownReply(error);
    if (!answer)
        return std::nullopt;
    return SNativePoint{answer->dst_x, answer->dst_y};
}
