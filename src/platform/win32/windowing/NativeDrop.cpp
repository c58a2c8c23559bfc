#include "platform/NativeDrop.h"

#include "values/ToPointer.h"

#include <windows.h>

SNativeDrop readNativeDrop(std::uintptr_t wParam) {
    SNativeDrop drop;
    POINT position = {};
    DragQueryPoint(toPointer<HDROP>(wParam), &position);
    drop.position = {position.x, position.y};
    const UINT number = DragQueryFileA(toPointer<HDROP>(wParam), 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < number; ++i) {
        char name[2048] = {};
        DragQueryFileA(toPointer<HDROP>(wParam), i, name, sizeof name);
        drop.names.emplace_back(name);
    }
    return drop;
}

void finishNativeDrop(std::uintptr_t wParam) {
    DragFinish(toPointer<HDROP>(wParam));
}
