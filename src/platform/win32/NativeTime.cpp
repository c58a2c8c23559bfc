#include "platform/NativeTime.h"

#include <windows.h>

SNativeTime nativeLocalTime() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth,  now.wDayOfWeek, now.wDay,
            now.wHour, now.wMinute, now.wSecond,    now.wMilliseconds};
}
