#include "platform/NativeKeyboard.h"

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"

SNativeModifiers nativeModifierKeys() {
    const auto connection = CXcbConnection::current();
    return connection ? connection->keyboard().getModifiers() : SNativeModifiers();
}

SNativeCharacter nativeCharacterOf(std::uintptr_t wParam, std::intptr_t lParam) {
    const auto connection = CXcbConnection::current();
    return connection ? connection->keyboard().characterOf(wParam, lParam) : SNativeCharacter();
}
