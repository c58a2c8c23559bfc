#include "platform/linux/windowing/window/CXcbPopups.h"

#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <algorithm>

namespace {

/// Whether a button is pressed. A turn of the wheel comes as a button as well.
bool isPress(const xcb_generic_event_t &event) {
    if (typeOf(event) != XCB_BUTTON_PRESS)
        return false;
    const int button = as<xcb_button_press_event_t>(event).detail;
    return button < 4 || button > 7;
}

}  // namespace

bool CXcbPopups::contains(xcb_window_t window) const {
    return std::find(m_chain.begin(), m_chain.end(), window) != m_chain.end();
}

void CXcbPopups::report(xcb_window_t window, unsigned message) {
    if (CXcbWindow *popup = m_connection.windowOf(window))
        popup->report(message);
}

// Popups come and go

void CXcbPopups::handleShown(CXcbWindow &popup) {
    const std::shared_ptr<CXcbConnection> held = m_connection.shared_from_this();
    const xcb_window_t id = popup.getId();
    const xcb_window_t before = m_hasFocus ? m_chain.back() : XCB_NONE;
    m_chain.push_back(id);
    if (!m_hasFocus)
        takeFocus(popup);
    report(before, NativeKillFocus);
    if (m_hasFocus && m_chain.back() == id)
        report(id, NativeSetFocus);
}

void CXcbPopups::handleHidden(CXcbWindow &popup) {
    remove(popup.getId());
}

void CXcbPopups::forgetWindow(xcb_window_t window) {
    remove(window);
    if (window != m_opener)
        return;
    // From now on nobody may pump, so that nobody would end a drag in a popup.
    if (contains(m_connection.pointer().getCapture()))
        m_connection.pointer().release();
    if (m_hasFocus)
        loseFocus();
}

void CXcbPopups::remove(xcb_window_t window) {
    const bool isLast = !m_chain.empty() && m_chain.back() == window;
    std::erase(m_chain, window);
    if (!isLast || !m_hasFocus)
        return;
    if (m_chain.empty())
        giveFocusBack();
    else if (!m_connection.isBroken())
        report(m_chain.back(), NativeSetFocus);
}

// The focus

// The root window holds the grab: each window then shows its own cursor, and the popups can be
// hidden in any order. When the server ends the grab, it reports that the pointer leaves the root
// window.
void CXcbPopups::takeFocus(const CXcbWindow &popup) {
    m_hasFocus = true;
    m_opener = popup.getOpener();
    selectOnRoot(XCB_EVENT_MASK_LEAVE_WINDOW);
    m_host.start(popup.getTopLevel());
    m_connection.pointer().grab().take(m_connection.getScreen().root, true);
}

void CXcbPopups::selectOnRoot(std::uint32_t events) {
    xcb_change_window_attributes(m_connection.get(), m_connection.getScreen().root,
                                 XCB_CW_EVENT_MASK, &events);
}

void CXcbPopups::giveFocusBack() {
    m_hasFocus = false;
    selectOnRoot(XCB_EVENT_MASK_NO_EVENT);
    m_host.stop();
    m_connection.pointer().endPopupGrab();
}

void CXcbPopups::loseFocus() {
    giveFocusBack();
    if (!m_connection.isBroken())
        report(m_chain.back(), NativeKillFocus);
}

// Events

bool CXcbPopups::handleEvent(const xcb_generic_event_t &event) {
    if (!m_hasFocus)
        return false;
    const bool isPressOutside =
        isPress(event) && !contains(as<xcb_button_press_event_t>(event).event);
    const bool isTakenByUs = typeOf(event) == XCB_FOCUS_OUT && m_connection.keyboard().isLent();
    const bool isHostLost = !isTakenByUs && m_host.isLostBy(event);
    if (isPressOutside || isHostLost || m_connection.pointer().grab().isBrokenBy(event))
        loseFocus();
    return false;  // another window of ours still gets the press
}

void CXcbPopups::pump() {
    m_connection.pointer().grab().pump();
    if (m_hasFocus && m_host.hasMoved())
        loseFocus();
}
