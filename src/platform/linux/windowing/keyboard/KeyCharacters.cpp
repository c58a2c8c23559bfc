#include "platform/linux/windowing/keyboard/KeyCharacters.h"

#include <xkbcommon/xkbcommon.h>

namespace {

constexpr SNativeCharacter none = {0, '\0'};
constexpr SNativeCharacter waits = {-1, '\0'};

constexpr SNativeCharacter single(std::uint32_t character) {
    return {1, static_cast<char>(character)};
}

bool isPrintable(std::uint32_t character) {
    return character >= 0x20 && character != 0x7F;
}

bool isDeadKey(xcb_keysym_t keysym) {
    return keysym >= XKB_KEY_dead_grave && keysym <= XKB_KEY_dead_greek;
}

SNativeCharacter withControl(xcb_keysym_t keysym, std::uint8_t virtualKey) {
    // By the key, not by its symbol: it works with other alphabets too.
    if (virtualKey >= 'A' && virtualKey <= 'Z')
        return single(virtualKey - 'A' + 1u);
    switch (keysym) {
    case XKB_KEY_at:
    case XKB_KEY_bracketleft:
    case XKB_KEY_backslash:
    case XKB_KEY_bracketright:
    case XKB_KEY_asciicircum:
    case XKB_KEY_underscore:
        return single(keysym & 0x1F);
    case XKB_KEY_BackSpace:
        return single(0x7F);
    case XKB_KEY_Return:
        return single('\n');
    case XKB_KEY_Escape:
        return single(0x1B);
    case XKB_KEY_space:
        return single(' ');
    default:
        return none;
    }
}

}  // namespace

SNativeCharacter characterOf(xcb_keysym_t keysym, std::uint8_t virtualKey, bool isControlDown) {
    if (isControlDown)
        return withControl(keysym, virtualKey);
    if (isDeadKey(keysym))
        return waits;
    switch (keysym) {
    case XKB_KEY_BackSpace:
        return single('\b');
    case XKB_KEY_Tab:
    case XKB_KEY_ISO_Left_Tab:
        return single('\t');
    case XKB_KEY_Return:
    case XKB_KEY_KP_Enter:
        return single('\r');
    case XKB_KEY_Escape:
        return single(0x1B);
    default:
        break;
    }
    const std::uint32_t character = xkb_keysym_to_utf32(keysym);
    return isPrintable(character) && character < 0x80 ? single(character) : none;
}

std::string textOf(xcb_keysym_t keysym) {
    char text[8] = {};
    if (isPrintable(xkb_keysym_to_utf32(keysym)))
        xkb_keysym_to_utf8(keysym, text, sizeof text);
    return text;
}
