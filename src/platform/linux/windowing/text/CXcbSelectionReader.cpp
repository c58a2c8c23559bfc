#include "platform/linux/windowing/text/CXcbSelectionReader.h"

#include "platform/linux/windowing/connection/XcbReply.h"
#include "platform/linux/windowing/text/TextEncodings.h"

#include <string_view>

namespace {

constexpr std::uint32_t largestPiece = 1u << 20;  // in units of 4 bytes
constexpr std::size_t largestText = 1u << 24;

}  // namespace

CXcbSelectionReader::CXcbSelectionReader(CXcbConnection &connection, xcb_atom_t selection)
    : m_connection(connection), m_selection(selection),
      m_window(xcb_generate_id(connection.get())) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), 0, m_window, connection.getScreen().root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    ask(connection.getAtoms().utf8String);
}

CXcbSelectionReader::~CXcbSelectionReader() {
    xcb_destroy_window(m_connection.get(), m_window);
}

void CXcbSelectionReader::ask(xcb_atom_t target) {
    m_target = target;
    xcb_convert_selection(m_connection.get(), m_window, m_selection, target,
                          m_connection.getAtoms().selectionData, m_connection.getTime());
}

void CXcbSelectionReader::handleEvent(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_SELECTION_NOTIFY:
        handleNotify(as<xcb_selection_notify_event_t>(event));
        break;
    case XCB_PROPERTY_NOTIFY: {
        // What arrives before the owner has notified us is fetched then.
        const auto &change = as<xcb_property_notify_event_t>(event);
        const bool isArriving = m_state == EState::Arriving || m_state == EState::Incremental;
        if (change.window == m_window && change.state == XCB_PROPERTY_NEW_VALUE && isArriving)
            fetch();
        break;
    }
    default:
        break;
    }
}

void CXcbSelectionReader::handleNotify(const xcb_selection_notify_event_t &event) {
    if (event.requestor != m_window || event.target != m_target || m_state != EState::Asked)
        return;
    if (event.property != XCB_NONE) {
        m_state = EState::Arriving;
        fetch();
    } else if (m_target != XCB_ATOM_STRING) {
        ask(XCB_ATOM_STRING);
    } else {
        m_state = EState::Refused;
    }
}

// The deletion asks the owner of a large text for the next piece.
void CXcbSelectionReader::fetch() {
    m_replies.emplace_back().expect(m_connection.get(),
                                    xcb_get_property(m_connection.get(), 1, m_window,
                                                     m_connection.getAtoms().selectionData,
                                                     XCB_ATOM_ANY, 0, largestPiece));
}

void CXcbSelectionReader::pump() {
    TXcbReply<xcb_get_property_reply_t> reply;
    while (!m_replies.empty() && !isOver() && m_replies.front().poll(reply)) {
        m_replies.pop_front();
        handleReply(reply.get());
    }
}

void CXcbSelectionReader::handleReply(const xcb_get_property_reply_t *reply) {
    if (reply != nullptr && reply->type == m_connection.getAtoms().incr) {
        m_state = EState::Incremental;
        return;
    }
    const bool isEnd = m_state == EState::Incremental && reply != nullptr && reply->value_len == 0;
    if (isEnd) {
        m_state = EState::Complete;
        return;
    }
    if (reply == nullptr || reply->format != 8) {
        m_state = EState::Refused;
        return;
    }
    const std::string_view piece(static_cast<const char *>(xcb_get_property_value(reply)),
                                 reply->value_len);
    m_text += reply->type == XCB_ATOM_STRING ? utf8FromLatin1(piece) : std::string(piece);
    if (m_state == EState::Arriving || reply->bytes_after > 0 || m_text.size() > largestText)
        m_state = EState::Complete;
}
