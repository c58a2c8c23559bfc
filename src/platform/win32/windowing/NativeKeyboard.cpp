#include "platform/NativeKeyboard.h"

#include <windows.h>

namespace {

bool isDown(int key) {
    return (GetAsyncKeyState(key) & 0x8000) != 0;
}

}  // namespace

SNativeModifiers nativeModifierKeys() {
    return {isDown(VK_CONTROL), isDown(VK_SHIFT), isDown(VK_MENU)};
}

SNativeCharacter nativeCharacterOf(std::uintptr_t wParam, std::intptr_t lParam) {
    // Without the top bit, with which a key that goes up would type nothing.
    const UINT scanCode = static_cast<UINT>(lParam >> 16) & 0xFF;
    BYTE keys[256];
    if (!GetKeyboardState(keys))
        return {};
    WORD characters[2] = {};
    const int number = ToAscii(static_cast<UINT>(wParam), scanCode, keys, characters, 0);
    return {number, static_cast<char>(LOBYTE(characters[0]))};
}
