#pragma once

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/connection/TXcbPendingReply.h"

#include <deque>
#include <string>

/// Asks the owner of a selection for its text, once. A window of its own receives the answer, so
/// that several readers do not disturb each other, and late answers reach nobody. [gui thread]
class CXcbSelectionReader {
public:
    CXcbSelectionReader(CXcbConnection &connection, xcb_atom_t selection);
    ~CXcbSelectionReader();
    CXcbSelectionReader(const CXcbSelectionReader &) = delete;
    CXcbSelectionReader &operator=(const CXcbSelectionReader &) = delete;

    void handleEvent(const xcb_generic_event_t &event);
    void pump();  ///< takes what the server has answered
    bool isOver() const { return m_state == EState::Refused || m_state == EState::Complete; }
    bool hasText() const { return m_state == EState::Complete; }
    /// @return UTF-8 as far as the owner keeps its promise. A text of many megabytes is cut.
    const std::string &getText() const { return m_text; }

private:
    enum class EState { Asked, Arriving, Incremental, Refused, Complete };

    void ask(xcb_atom_t target);
    void handleNotify(const xcb_selection_notify_event_t &event);
    void fetch();
    void handleReply(const xcb_get_property_reply_t *reply);

    CXcbConnection &m_connection;
    const xcb_atom_t m_selection;
    const xcb_window_t m_window;
    xcb_atom_t m_target = XCB_NONE;
    EState m_state = EState::Asked;
    std::deque<TXcbPendingReply<xcb_get_property_reply_t>> m_replies;
    std::string m_text;
};
