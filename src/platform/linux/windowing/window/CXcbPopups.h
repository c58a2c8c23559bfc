#pragma once

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/window/CXcbHostWatch.h"

#include <vector>

/// The chain of popups that are shown, each above the one before. The last one has what counts as
/// the focus: a grab of the pointer. The host keeps the keyboard. A press outside the chain ends
/// it, and so does whatever would hide a menu: the host's top level window loses the focus, moves
/// or is unmapped, or the grab is broken. A text field is a popup as well, but one that borrows
/// the host's keyboard. [gui thread]
class CXcbPopups : public IXcbEventHandler {
public:
    explicit CXcbPopups(CXcbConnection &connection)
        : m_connection(connection), m_host(connection) {}
    bool handleEvent(const xcb_generic_event_t &event) override;
    void forgetWindow(xcb_window_t window) override;

    void handleShown(CXcbWindow &popup);   ///< after it was mapped
    void handleHidden(CXcbWindow &popup);  ///< after it was unmapped
    bool isEmpty() const { return m_chain.empty(); }
    /// Once taken by a press outside, the focus only comes back with the next popup that is shown.
    bool hasFocus() const { return m_hasFocus; }
    /// Once per pump: asks again for a grab that was refused.
    void pump();

private:
    bool contains(xcb_window_t window) const;
    void takeFocus(const CXcbWindow &popup);
    void giveFocusBack();
    void selectOnRoot(std::uint32_t events);
    void loseFocus();
    void remove(xcb_window_t window);
    void report(xcb_window_t window, unsigned message);

    CXcbConnection &m_connection;
    CXcbHostWatch m_host;
    std::vector<xcb_window_t> m_chain;
    xcb_window_t m_opener = XCB_NONE;  // of the first popup
    bool m_hasFocus = false;
};
