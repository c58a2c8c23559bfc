#include "platform/ErrorStreamColumns.h"

#include <windows.h>

int errorStreamColumns() {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info) == 0)
        return 0;
    return info.srWindow.Right - info.srWindow.Left + 1;
}
