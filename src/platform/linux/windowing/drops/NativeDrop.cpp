#include "platform/NativeDrop.h"

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/drops/CXcbDrops.h"

SNativeDrop readNativeDrop(std::uintptr_t wParam) {
    const auto connection = CXcbConnection::current();
    return connection ? connection->drops().read(wParam) : SNativeDrop();
}

void finishNativeDrop(std::uintptr_t wParam) {
    if (const auto connection = CXcbConnection::current())
        connection->drops().finish(wParam);
}
