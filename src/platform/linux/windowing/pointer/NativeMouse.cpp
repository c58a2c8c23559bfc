#include "platform/NativeMouse.h"

#include "platform/linux/windowing/pointer/CXcbCursors.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/pointer/SystemCursors.h"
#include "values/ToPointer.h"

void *loadNativeCursor(int systemCursor) {
    return findSystemCursor(systemCursor) != nullptr ? new SNativeCursor{systemCursor} : nullptr;
}

void *loadNativeCursor(void *, int) {
    return nullptr;
}

void *loadNativeAnimatedCursor(void *, int) {
    return nullptr;
}

void destroyNativeCursor(void *cursor) {
    delete static_cast<SNativeCursor *>(cursor);
}

void setNativeCursor(void *cursor) {
    if (const auto connection = CXcbConnection::current())
        connection->cursors().set(cursor);
}

void captureNativeMouse(void *window) {
    const auto id = static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(window));
    if (const auto connection = CXcbConnection::find(id))
        connection->pointer().capture(id);
}

void releaseNativeMouse() {
    if (const auto connection = CXcbConnection::current())
        connection->pointer().release();
}

void *nativeMouseCapture() {
    const auto connection = CXcbConnection::current();
    const xcb_window_t id = connection ? connection->pointer().getCapture() : XCB_NONE;
    return toPointer<void *>(id);
}

SNativePoint nativeMousePosition() {
    const auto connection = CXcbConnection::current();
    return connection ? connection->pointer().getPosition() : SNativePoint();
}
