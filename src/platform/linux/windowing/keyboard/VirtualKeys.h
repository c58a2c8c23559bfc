#pragma once

#include <cstdint>
#include <xcb/xcb.h>

/// The keys that the code asks for by name, numbered as on Windows.
enum EVirtualKey : std::uint8_t {
    VirtualTab = 9,
    VirtualShift = 16,
    VirtualControl = 17,
    VirtualAlt = 18,
    VirtualUnknown = 255,
};

/// @param keysym  the symbol of a key, without modifiers. Of a keypad key, the one in force.
/// @return the virtual key of Windows; 0 if the symbol is no name of a key there.
std::uint8_t virtualKeyOf(xcb_keysym_t keysym);

/// For keys whose symbol says nothing, like those of other alphabets.
/// @return the virtual key at this place of an American keyboard; VirtualUnknown if there is none.
std::uint8_t virtualKeyAt(xcb_keycode_t keycode);
