#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/windowing/connection/XcbReply.h"

#include <cstdint>
#include <optional>

class CXcbConnection;

/// Watches the host's top level window while a menu is open above it. Nothing here waits for the
/// server. [gui thread]
class CXcbHostWatch {
public:
    explicit CXcbHostWatch(CXcbConnection &connection) : m_connection(connection) {}

    void start(xcb_window_t topLevel);  ///< 0 for none
    void stop();

    /// @return whether the window has lost the keyboard or is not seen any more.
    bool isLostBy(const xcb_generic_event_t &event);
    /// Once per pump. @return whether the window has moved since the start.
    bool hasMoved();

private:
    void select(std::uint32_t events);
    void askForPosition();
    void forgetQuestion();
    std::optional<SNativePoint> readPosition();

    CXcbConnection &m_connection;
    xcb_window_t m_window = XCB_NONE;
    std::optional<SNativePoint> m_start;  // on the screen
    std::optional<std::uint32_t> m_question;
    bool m_asksAgain = false;  // after the answer
};
