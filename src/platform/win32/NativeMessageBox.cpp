#include "platform/NativeMessageBox.h"

#include <windows.h>

void showNativeMessage(const char *text, const char *caption, bool isError) {
    MessageBoxA(nullptr, text, caption, isError ? MB_ICONERROR : 0);
}
