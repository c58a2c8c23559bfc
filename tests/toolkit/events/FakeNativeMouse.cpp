#include "toolkit/events/FakeNativeMouse.h"

#include "platform/NativeMouse.h"

#include <cstdint>

namespace {

// A handle is the number of cursors loaded so far.
void *load(const SFakeNativeMouse::SCursor &cursor) {
    fakeNativeMouse().loaded.push_back(cursor);
    return reinterpret_cast<void *>(fakeNativeMouse().loaded.size());
}

}  // namespace

SFakeNativeMouse &fakeNativeMouse() {
    static SFakeNativeMouse *const mouse = new SFakeNativeMouse;  // outlives static cursors
    return *mouse;
}

const SFakeNativeMouse::SCursor &SFakeNativeMouse::cursorOf(void *handle) const {
    return loaded.at(reinterpret_cast<std::uintptr_t>(handle) - 1);
}

void *loadNativeCursor(int systemCursor) {
    return load({systemCursor, nullptr, false});
}

void *loadNativeCursor(void *module, int resource) {
    return load({resource, module, false});
}

void *loadNativeAnimatedCursor(void *module, int resource) {
    return load({resource, module, true});
}

void destroyNativeCursor(void *cursor) {
    fakeNativeMouse().destroyed.push_back(cursor);
}

void setNativeCursor(void *cursor) {
    fakeNativeMouse().shown = cursor;
}

void captureNativeMouse(void *window) {
    fakeNativeMouse().captureWindow = window;
}

void releaseNativeMouse() {
    fakeNativeMouse().captureWindow = nullptr;
}

void *nativeMouseCapture() {
    return fakeNativeMouse().captureWindow;
}

SNativePoint nativeMousePosition() {
    return fakeNativeMouse().position;
}
