#include "platform/linux/windowing/keyboard/CKeyboardLoan.h"

#include "platform/linux/windowing/connection/XcbReply.h"

void CKeyboardLoan::take(xcb_window_t popup) {
    if (!isTaken()) {
        const auto focus = ownReply(xcb_get_input_focus_reply(
            m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
        m_owner = focus ? focus->focus : xcb_window_t{XCB_NONE};
        m_revertTo = focus ? focus->revert_to : std::uint8_t{XCB_INPUT_FOCUS_NONE};
    }
    m_borrower = popup;
    // Without a time: a window manager may just have handled the same press.
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_PARENT, popup, XCB_CURRENT_TIME);
}

void CKeyboardLoan::giveBack(xcb_window_t popup) {
    if (m_borrower != popup)
        return;
    m_borrower = XCB_NONE;
    xcb_set_input_focus(m_connection.get(), m_revertTo, m_owner, XCB_CURRENT_TIME);
}

void CKeyboardLoan::handleLoss(xcb_window_t popup) {
    if (m_borrower == popup)
        m_borrower = XCB_NONE;
}
