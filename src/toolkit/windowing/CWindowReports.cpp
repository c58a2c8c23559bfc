// What the native window reports to a window.
#include "foundation/CaughtException.h"
#include "toolkit/windowing/CWindow.h"

namespace Tessitor::GUI::Windowing {

// Ends a drag that is in progress. The mouse may be captured by another window, even one of the
// host.
void CWindow::handleException(CWindow *window, SWindowParts &parts) {
    Exceptions::traceCaughtException("Caught an exception in a window");
    if (!parts.isWindowGone() && parts.mouse.isCapturedBy(window))
        parts.mouse.releaseMouse();
    parts.root->unlockAll();
}

CWindow::Result CWindow::handleMessage(unsigned message, std::uintptr_t wParam,
                                       std::intptr_t lParam) {
    const std::shared_ptr<SWindowParts> held = m_parts;  // a handler may delete the window
    try {
        return windowProcess(message, wParam, lParam);
    } catch (...) {
        handleException(this, *held);
        return 0;
    }
}

void CWindow::handleTimer(int id) {
    const std::shared_ptr<SWindowParts> held = m_parts;
    try {
        timerEvent(id);
    } catch (...) {
        handleException(this, *held);
    }
}

void CWindow::handleNativeDestroyed() {
    const std::shared_ptr<SWindowParts> held = m_parts;
    try {
        windowDestroying();
    } catch (...) {
        handleException(this, *held);
    }
    held->root->unlockAll();
    held->timedObjects.clearArray();
    held->handle.native = nullptr;
    m_native.reset();
}

}  // namespace Tessitor::GUI::Windowing
