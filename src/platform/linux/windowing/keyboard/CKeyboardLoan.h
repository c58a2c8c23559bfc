#pragma once

#include "platform/linux/windowing/connection/CXcbConnection.h"

/// The keyboard of another program that a popup of ours, a text field, has borrowed. [gui thread]
class CKeyboardLoan {
public:
    explicit CKeyboardLoan(CXcbConnection &connection) : m_connection(connection) {}
    CKeyboardLoan(const CKeyboardLoan &) = delete;
    CKeyboardLoan &operator=(const CKeyboardLoan &) = delete;

    /// Gives the keyboard to a popup. One that has it already hands it over. Waits for the server.
    void take(xcb_window_t popup);
    bool isTaken() const { return m_borrower != XCB_NONE; }
    /// Gives the keyboard to the window that had it. Ignored if the popup has not borrowed it.
    void giveBack(xcb_window_t popup);
    /// Somebody else has taken the keyboard from the popup.
    void handleLoss(xcb_window_t popup);

private:
    CXcbConnection &m_connection;
    xcb_window_t m_borrower = XCB_NONE;
    xcb_window_t m_owner = XCB_NONE;
    std::uint8_t m_revertTo = XCB_INPUT_FOCUS_NONE;
};
