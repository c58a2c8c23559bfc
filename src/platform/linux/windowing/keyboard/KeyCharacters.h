#pragma once

#include "platform/NativeKeyboard.h"

#include <string>
#include <xcb/xcb.h>

/// @param keysym  what the key types with the modifiers in force.
/// @return what Windows gives for this key; none for a character outside ASCII, since that is
///         several bytes.
SNativeCharacter characterOf(xcb_keysym_t keysym, std::uint8_t virtualKey, bool isControlDown);

/// @return the character in UTF-8; "" if the key types none, also for control characters.
std::string textOf(xcb_keysym_t keysym);
