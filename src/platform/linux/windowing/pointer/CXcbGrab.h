#pragma once

#include "platform/linux/windowing/connection/XcbReply.h"

#include <cstdint>
#include <optional>

class CXcbConnection;

/// A grab of the pointer that we ask for. The server makes another one by itself while a button is
/// pressed; ours replaces it. There is one at a time. Nothing here waits for the server.
/// [gui thread]
class CXcbGrab {
public:
    explicit CXcbGrab(CXcbConnection &connection) : m_connection(connection) {}

    /// Sends a window all that the pointer does, from now until end(). While the server refuses,
    /// each pump asks again.
    /// @param sparesOwnWindows  our other windows still get what happens over them.
    void take(xcb_window_t window, bool sparesOwnWindows);
    /// Also ends what the server has grabbed by itself.
    void end();
    bool isTaken() const { return m_window != XCB_NONE; }
    void pump();

    /// @return whether this grab may have kept the server from making one for a press, or its end
    ///         may have ended that one.
    bool mayCover(const xcb_generic_event_t &press) const;
    /// @return whether the event tells that the server has ended the grab.
    bool isBrokenBy(const xcb_generic_event_t &event);

private:
    void ask();
    void readAnswer();

    CXcbConnection &m_connection;
    xcb_window_t m_window = XCB_NONE;
    bool m_sparesOwnWindows = false;
    bool m_isHeld = false;              // as the server has answered
    bool m_isRefused = false;           // likewise
    std::uint32_t m_askedSequence = 0;  // of the last request
    std::uint32_t m_endSequence = 0;    // of the last request that ended a grab
};
