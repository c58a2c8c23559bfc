#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"

#include "platform/linux/windowing/connection/XcbReply.h"
#include "platform/linux/windowing/keyboard/KeyCharacters.h"
#include "platform/linux/windowing/keyboard/VirtualKeys.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t keyEvents = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
constexpr std::uint16_t layoutEvents =
    XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;

// A keycode is eight more than the number that keyboards send, which Windows calls the scan code.
constexpr int keycodeOffset = 8;

/// Whether the focus itself came or went. A grab only borrows it, and the other details tell of
/// windows on the way to it, or below the pointer.
bool isOfWindow(const xcb_focus_in_event_t &event) {
    const bool isOfGrab =
        event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
    const bool isOwn = event.detail == XCB_NOTIFY_DETAIL_ANCESTOR ||
                       event.detail == XCB_NOTIFY_DETAIL_INFERIOR ||
                       event.detail == XCB_NOTIFY_DETAIL_NONLINEAR;
    return isOwn && !isOfGrab;
}

SNativeModifiers modifiersOf(std::uint16_t state) {
    return {(state & XCB_MOD_MASK_CONTROL) != 0, (state & XCB_MOD_MASK_SHIFT) != 0,
            (state & XCB_MOD_MASK_1) != 0};
}

xcb_keycode_t keycodeOf(std::intptr_t lParam) {
    return static_cast<xcb_keycode_t>(((lParam >> 16) & 0xFF) + keycodeOffset);
}

}  // namespace

CXcbKeyboard::CXcbKeyboard(CXcbConnection &connection)
    : m_connection(connection), m_loan(connection) {
    // The answer is there long before a window has the focus, so that nobody waits for it then.
    xcb_prefetch_extension_data(connection.get(), &xcb_xkb_id);
}

CXcbKeyboard::~CXcbKeyboard() = default;

bool CXcbKeyboard::handleEvent(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_FOCUS_IN:
        handleFocusIn(as<xcb_focus_in_event_t>(event));
        return false;
    case XCB_FOCUS_OUT:
        handleFocusOut(as<xcb_focus_out_event_t>(event));
        return false;
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
        handleKey(as<xcb_key_press_event_t>(event), typeOf(event) == XCB_KEY_PRESS);
        return true;
    default:
        return handleLayout(event);
    }
}

void CXcbKeyboard::forgetWindow(xcb_window_t window) {
    if (window == m_focus)
        m_focus = 0;
    m_loan.giveBack(window);
}

// The focus

void CXcbKeyboard::handleFocusIn(const xcb_focus_in_event_t &event) {
    CXcbWindow *window = m_connection.windowOf(event.event);
    if (window == nullptr || event.event == m_focus || !isOfWindow(event))
        return;
    m_focus = event.event;
    m_keysDown = {};
    prepareFor(*window);
    if (!window->isPopup())
        window->report(NativeSetFocus);
}

void CXcbKeyboard::lendTo(CXcbWindow &popup) {
    // Before it has the keyboard, so that no key is lost.
    prepareFor(popup);
    m_loan.take(popup.getId());
}

void CXcbKeyboard::prepareFor(CXcbWindow &window) {
    setUp();
    askForKeymap();
    // After asking for the layout, so that the answer comes before the first key.
    window.selectEvents(keyEvents);
}

void CXcbKeyboard::handleFocusOut(const xcb_focus_out_event_t &event) {
    if (event.event != m_focus || !isOfWindow(event))
        return;
    m_loan.handleLoss(event.event);
    m_composer.reset();
    CXcbWindow *window = m_connection.windowOf(std::exchange(m_focus, 0));
    if (window == nullptr)
        return;
    // The keys are the host's again, also while the pointer is over the window.
    window->unselectEvents(keyEvents);
    window->report(NativeKillFocus);
}

// The layout

void CXcbKeyboard::setUp() {
    if (std::exchange(m_isSetUp, true))
        return;
    xcb_connection_t *connection = m_connection.get();
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (extension == nullptr || extension->present == 0)
        return;
    m_firstEvent = extension->first_event;
    xcb_discard_reply(connection, xcb_xkb_use_extension_unchecked(connection, XCB_XKB_MAJOR_VERSION,
                                                                  XCB_XKB_MINOR_VERSION)
                                      .sequence);
    // A key that repeats itself then goes down again and again, but not up.
    const std::uint32_t repeat = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    xcb_discard_reply(connection, xcb_xkb_per_client_flags_unchecked(
                                      connection, XCB_XKB_ID_USE_CORE_KBD, repeat, repeat, 0, 0, 0)
                                      .sequence);
    xcb_xkb_select_events(connection, XCB_XKB_ID_USE_CORE_KBD, layoutEvents, 0, layoutEvents,
                          XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS,
                          XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS, nullptr);
}

void CXcbKeyboard::askForKeymap() {
    if (m_firstEvent != 0 && std::exchange(m_isOutdated, false))
        m_nextKeymap.expect(m_connection.get(), CXcbKeymap::request(m_connection.get()));
}

void CXcbKeyboard::takeKeymap() {
    TXcbReply<xcb_xkb_get_map_reply_t> reply;
    if (m_nextKeymap.poll(reply) && reply)
        m_keymap = CXcbKeymap(*reply);
}

bool CXcbKeyboard::handleLayout(const xcb_generic_event_t &event) {
    if (m_firstEvent == 0 || typeOf(event) != m_firstEvent)
        return false;
    takeKeymap();  // the one before may be needed until the next arrives
    m_isOutdated = true;
    if (m_focus != 0)
        askForKeymap();
    return true;
}

// Keys

void CXcbKeyboard::handleKey(const xcb_key_press_event_t &event, bool isDown) {
    // Keys may still be on their way when the focus goes.
    if (event.event != m_focus)
        return;
    takeKeymap();
    const SKey key = readKey(event, isDown);
    m_keysDown[key.keycode] = isDown ? key.virtualKey : 0;
    report(key);
}

CXcbKeyboard::SKey CXcbKeyboard::readKey(const xcb_key_press_event_t &event, bool isDown) {
    SKey key = {};
    key.isDown = isDown;
    key.keycode = event.detail;
    key.state = event.state;
    // A key goes up as what it went down, even if a lock has changed meanwhile.
    const std::uint8_t before = m_keysDown[key.keycode];
    key.isRepeated = isDown && before != 0;
    key.virtualKey = before != 0 ? before : m_keymap.virtualKeyOf(key.keycode, key.state);
    key.modifiers = modifiersAfter(key);
    readCharacter(key);
    return key;
}

/// The state in a key event is that before it.
SNativeModifiers CXcbKeyboard::modifiersAfter(const SKey &key) const {
    SNativeModifiers modifiers = modifiersOf(key.state);
    const auto isHeldByOther = [&] {
        for (std::size_t keycode = 0; keycode < m_keysDown.size(); ++keycode)
            if (keycode != key.keycode && m_keysDown[keycode] == key.virtualKey)
                return true;
        return false;
    };
    if (key.virtualKey == VirtualShift)
        modifiers.isShiftDown = key.isDown || isHeldByOther();
    else if (key.virtualKey == VirtualControl)
        modifiers.isControlDown = key.isDown || isHeldByOther();
    else if (key.virtualKey == VirtualAlt)
        modifiers.isAltDown = key.isDown || isHeldByOther();
    return modifiers;
}

void CXcbKeyboard::readCharacter(SKey &key) {
    const xcb_keysym_t keysym = m_keymap.keysymOf(key.keycode, key.state);
    key.character = ::characterOf(keysym, key.virtualKey, key.modifiers.isControlDown);
    if (!key.isDown || key.modifiers.isControlDown || key.modifiers.isAltDown)
        return;
    switch (m_composer.feed(keysym)) {
    case CKeyComposer::EResult::Waiting:
        key.character = {-1, '\0'};
        break;
    case CKeyComposer::EResult::Composed:
        key.text = m_composer.getText();
        key.character =
            key.text.size() == 1 ? SNativeCharacter{1, key.text.front()} : SNativeCharacter();
        break;
    case CKeyComposer::EResult::Cancelled:
        key.character = {};
        break;
    case CKeyComposer::EResult::Nothing:
        key.text = textOf(keysym);
        break;
    }
}

void CXcbKeyboard::report(const SKey &key) {
    CXcbWindow *window = m_connection.windowOf(m_focus);
    if (window == nullptr)
        return;
    constexpr std::uint32_t once = 1, wasDown = 1u << 30, goesUp = 1u << 31;
    const std::uint32_t scanCode = static_cast<std::uint8_t>(key.keycode - keycodeOffset);
    std::uint32_t lParam = once | scanCode << 16;
    if (!key.isDown || key.isRepeated)
        lParam |= wasDown;
    if (!key.isDown)
        lParam |= goesUp;
    const SKey *const before = std::exchange(m_handled, &key);
    window->report(key.isDown ? NativeKeyDown : NativeKeyUp, key.virtualKey,
                   static_cast<std::intptr_t>(lParam));
    m_handled = before;
}

// What a key message can ask for

SNativeModifiers CXcbKeyboard::getModifiers() const {
    return m_handled != nullptr ? m_handled->modifiers
                                : modifiersOf(m_connection.pointer().getState());
}

SNativeCharacter CXcbKeyboard::characterOf(std::uintptr_t wParam, std::intptr_t lParam) const {
    const xcb_keycode_t keycode = keycodeOf(lParam);
    if (m_handled != nullptr && m_handled->keycode == keycode)
        return m_handled->character;
    const std::uint16_t state =
        m_handled != nullptr ? m_handled->state : m_connection.pointer().getState();
    return ::characterOf(m_keymap.keysymOf(keycode, state), static_cast<std::uint8_t>(wParam),
                         modifiersOf(state).isControlDown);
}

const std::string &CXcbKeyboard::getText() const {
    static const std::string none;
    return m_handled != nullptr ? m_handled->text : none;
}
