#include "platform/NativeDrop.h"

#include <windows.h>

namespace {

HDROP toDrop(std::uintptr_t wParam) {
    return reinterpret_cast<HDROP>(wParam);  // NOLINT(performance-no-int-to-ptr)
}

}  // namespace

SNativeDrop readNativeDrop(std::uintptr_t wParam) {
    SNativeDrop drop;
    POINT position = {};
    DragQueryPoint(toDrop(wParam), &position);
    drop.position = {position.x, position.y};
    const UINT number = DragQueryFileA(toDrop(wParam), 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < number; ++i) {
        char name[2048] = {};
        DragQueryFileA(toDrop(wParam), i, name, sizeof name);
        drop.names.emplace_back(name);
    }
    return drop;
}

void finishNativeDrop(std::uintptr_t wParam) {
    DragFinish(toDrop(wParam));
}
