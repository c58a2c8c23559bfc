#include "toolkit/events/CMouse.h"

#include "platform/NativeMouse.h"
#include "toolkit/events/CCursor.h"
#include "toolkit/events/IWindow.h"
#include "toolkit/events/SWindowHandle.h"

namespace Tessitor::GUI::Windowing {

CMouse::CMouse() : CMouse(CCursor::getDefaultCursor()) {}

void CMouse::setPositionFromPackedLong(long packed) {
    m_position.setPoint(static_cast<std::int16_t>(packed), static_cast<std::int16_t>(packed >> 16));
}

void CMouse::setCursor(CCursor *cursor) {
    if (cursor == nullptr)
        return;
    m_cursor = cursor;
    setNativeCursor(cursor->getCursorHandle());
}

void CMouse::captureMouse(IWindow *window) {
    captureNativeMouse(window->getWindowHandle()->native);
}

void CMouse::releaseMouse() {
    releaseNativeMouse();
}

bool CMouse::isCaptured() const {
    return nativeMouseCapture() != nullptr;
}

bool CMouse::isCapturedBy(IWindow *window) const {
    return isCaptured() && nativeMouseCapture() == window->getWindowHandle()->native;
}

}  // namespace Tessitor::GUI::Windowing
