#pragma once

#include "platform/NativeKeyboard.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/connection/TXcbPendingReply.h"
#include "platform/linux/windowing/keyboard/CKeyComposer.h"
#include "platform/linux/windowing/keyboard/CKeyboardLoan.h"
#include "platform/linux/windowing/keyboard/CXcbKeymap.h"

#include <array>
#include <string>

/// Turns keys into key messages, with the keyboard layout of the server. Nothing is asked for until
/// a window gets the keyboard, and nothing waits for the answer. [gui thread]
class CXcbKeyboard : public IXcbEventHandler {
public:
    explicit CXcbKeyboard(CXcbConnection &connection);
    ~CXcbKeyboard() override;
    CXcbKeyboard(const CXcbKeyboard &) = delete;
    CXcbKeyboard &operator=(const CXcbKeyboard &) = delete;

    /// Handles keys, the keyboard focus and changes of the layout. Whichever window has the focus
    /// gets the keys, even a popup. NativeKillFocus reports the loss.
    bool handleEvent(const xcb_generic_event_t &event) override;
    void forgetWindow(xcb_window_t window) override;

    /// Gives a popup the keyboard until it is destroyed or somebody else takes it. Waits for the
    /// server.
    void lendTo(CXcbWindow &popup);
    bool isLent() const { return m_loan.isTaken(); }
    xcb_window_t getFocus() const { return m_focus; }  ///< the window with the keyboard; 0 for none
    /// Waits for the server unless an event is being handled.
    SNativeModifiers getModifiers() const;
    SNativeCharacter characterOf(std::uintptr_t wParam, std::intptr_t lParam) const;
    /// @return what the key that is being handled types, in UTF-8: also characters that are no
    ///         single byte, but no control characters. "" outside a message of a key that goes down
    ///         and for keys that type nothing.
    const std::string &getText() const;

private:
    /// A key event, and what comes of it.
    struct SKey {
        bool isDown, isRepeated;
        xcb_keycode_t keycode;
        std::uint16_t state;
        std::uint8_t virtualKey;
        SNativeModifiers modifiers;
        SNativeCharacter character;
        std::string text;  // UTF-8
    };

    void handleFocusIn(const xcb_focus_in_event_t &event);
    void handleFocusOut(const xcb_focus_out_event_t &event);
    void handleKey(const xcb_key_press_event_t &event, bool isDown);
    bool handleLayout(const xcb_generic_event_t &event);

    void prepareFor(CXcbWindow &window);
    void setUp();
    void askForKeymap();
    void takeKeymap();

    SKey readKey(const xcb_key_press_event_t &event, bool isDown);
    void readCharacter(SKey &key);
    SNativeModifiers modifiersAfter(const SKey &key) const;
    void report(const SKey &key);

    CXcbConnection &m_connection;
    CKeyboardLoan m_loan;
    xcb_window_t m_focus = 0;
    bool m_isSetUp = false;
    std::uint8_t m_firstEvent = 0;  // of the extension; 0 if the server has none
    bool m_isOutdated = true;       // the layout
    CXcbKeymap m_keymap;
    TXcbPendingReply<xcb_xkb_get_map_reply_t> m_nextKeymap;
    CKeyComposer m_composer;
    std::array<std::uint8_t, 256> m_keysDown = {};  // their virtual keys; 0 for a key that is up
    const SKey *m_handled = nullptr;                // null outside a key message
};
