#pragma once

#include "platform/linux/windowing/connection/XcbReply.h"

#include <utility>
#include <xcb/xcbext.h>

/// The answer to a request, which is fetched once it has arrived, so that nobody waits for it. It
/// has arrived when an event arrives that the server sent later. Must not outlive the connection.
template <typename Reply>
class TXcbPendingReply {
public:
    TXcbPendingReply() = default;
    TXcbPendingReply(const TXcbPendingReply &) = delete;
    TXcbPendingReply &operator=(const TXcbPendingReply &) = delete;
    ~TXcbPendingReply() { discard(); }

    /// @param cookie  of the request. An answer that is still missing is discarded.
    template <typename Cookie>
    void expect(xcb_connection_t *connection, Cookie cookie) {
        discard();
        m_connection = connection;
        m_sequence = cookie.sequence;
    }
    bool isPending() const { return m_connection != nullptr; }
    void discard() {
        if (isPending())
            xcb_discard_reply(std::exchange(m_connection, nullptr), m_sequence);
    }
    /// @param reply  receives the answer; null for an error.
    /// @return whether it has arrived, in which case it is pending no more.
    bool poll(TXcbReply<Reply> &reply) {
        void *memory = nullptr;
        xcb_generic_error_t *error = nullptr;
        if (!isPending() || xcb_poll_for_reply(m_connection, m_sequence, &memory, &error) == 0)
            return false;
        m_connection = nullptr;
        ownReply(error).reset();
        reply = ownReply(static_cast<Reply *>(memory));
        return true;
    }

private:
    xcb_connection_t *m_connection = nullptr;  // null if nothing is pending
    unsigned m_sequence = 0;
};
