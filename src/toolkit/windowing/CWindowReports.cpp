// What the native window reports to a window.
#include "foundation/CaughtException.h"
#include "toolkit/windowing/CWindow.h"

namespace Tessitor::GUI::Windowing {

// Ends a drag that is in progress. The mouse may be captured by another window, even one of the
// host.
void CWindow::handleException(SWindowParts &parts) {
    Exceptions::traceCaughtException("Caught an exception in a window");
    if (!parts.isWindowGone() && parts.mouse.isCapturedBy(this))
        parts.mouse.releaseMouse();
    parts.root->unlockControl();
}

CWindow::Result CWindow::handleMessage(unsigned message, std::uintptr_t wParam,
                                       std::intptr_t lParam) {
    const std::shared_ptr<SWindowParts> held = m_parts;  // a handler may delete the window
    try {
        return windowProcess(message, wParam, lParam);
    } catch (...) {
        handleException(*held);
        return 0;
    }
}

void CWindow::handleTimer(int id) {
    const std::shared_ptr<SWindowParts> held = m_parts;
    try {
        timerEvent(id);
    } catch (...) {
        handleException(*held);
    }
}

void CWindow::handleNativeDestroyed() {
    const std::shared_ptr<SWindowParts> held = m_parts;
    try {
        windowDestroying();
    } catch (...) {
        handleException(*held);
    }
    held->timedObjects.clearArray();
    held->handle.native = nullptr;
    m_native.reset();
}

}  // namespace Tessitor::GUI::Windowing
