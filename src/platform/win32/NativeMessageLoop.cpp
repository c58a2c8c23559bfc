#include "platform/NativeMessageLoop.h"

#include <windows.h>

int runNativeMessageLoop() {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) != 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

void quitNativeMessageLoop(int result) {
    PostQuitMessage(result);
}
