#pragma once

#include <cstdint>

/// The keyboard. [gui thread]

struct SNativeModifiers {
    bool isControlDown = false, isShiftDown = false, isAltDown = false;
};

/// @return the keys that are down now.
SNativeModifiers nativeModifierKeys();

/// What a key types.
struct SNativeCharacter {
    int number = 0;  ///< of characters: 0, 1 or 2; -1 for an accent that waits for its letter
    char character = '\0';  ///< the first, in the system's narrow encoding; 0 if there is none
};

/// Translates a key with the modifiers and locks that are in force.
/// @param wParam  of NativeKeyDown or NativeKeyUp, like lParam.
SNativeCharacter nativeCharacterOf(std::uintptr_t wParam, std::intptr_t lParam);
