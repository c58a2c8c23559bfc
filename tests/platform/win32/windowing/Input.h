#pragma once

#include "platform/SNativePoint.h"

#include <windows.h>

/// What a user does, as the system reports it. It reaches the windows in handleMessages().

/// Handles all messages in the queue of this thread.
inline void handleMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

/// @param flags  a sum of the MOUSEEVENTF_ bits.
/// @param data   of the wheel: 120 for each notch.
inline void sendMouse(DWORD flags, int data = 0, SNativePoint position = {}) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi = {position.x, position.y, static_cast<DWORD>(data), flags, 0, 0};
    SendInput(1, &input, sizeof input);
}

/// @param position  on the screen.
inline void moveMouse(SNativePoint position) {
    // The system counts in 65536ths of the screen and rounds down.
    const auto scaled = [](int pixels, int size) { return (pixels * 0x10000 + size - 1) / size; };
    sendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0,
              {scaled(position.x, GetSystemMetrics(SM_CXSCREEN)),
               scaled(position.y, GetSystemMetrics(SM_CYSCREEN))});
}

inline void sendKey(WORD key, bool isDown) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = isDown ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}
