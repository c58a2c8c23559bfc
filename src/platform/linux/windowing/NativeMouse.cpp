#include "platform/NativeMouse.h"

#include "platform/linux/windowing/CXcbCursors.h"
#include "platform/linux/windowing/CXcbPointer.h"
#include "platform/linux/windowing/SystemCursors.h"

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
    const std::uintptr_t id = connection ? connection->pointer().getCapture() : XCB_NONE;
    return reinterpret_cast<void *>(id);  // NOLINT(performance-no-int-to-ptr)
}

SNativePoint nativeMousePosition() {
    const auto connection = CXcbConnection::current();
    return connection ? connection->pointer().getPosition() : SNativePoint();
}
