#include "toolkit/windowing/CWindow.h"

#include "foundation/CApplicationInformation.h"
#include "foundation/CException.h"
#include "foundation/CopyText.h"
#include "values/Truncation.h"

#include <utility>

namespace Tessitor::GUI::Windowing {

using MathTools::CDimension;
using MathTools::CPoint;
using MathTools::CRect;
using Tessitor::Basics::CApplicationInformation;

Tessitor::Basics::TClassRecord<CWindow> CWindow::s_class("CWindow", "IWindow");

CWindow::CWindow(const CRect &rect)
    : CWindow(rect,
              [](IWindow *window) { return std::make_unique<Controls::CControlRoot>(window); }) {}

CWindow::CWindow(const CRect &rect, const RootFactory &createRoot)
    : m_attributes(std::make_unique<CWindowAttributes>()),
      m_size(rect.getWidth(), rect.getHeight()), m_position(rect.getLeft(), rect.getTop()),
      m_rect(rect), m_parts(std::make_shared<SWindowParts>(createRoot(this))) {
    m_mouseListener = m_parts->root.get();
    m_dropFileListener = m_parts->root.get();
    m_keyboardListener = m_parts->root.get();
    s_class.incrementInstanceCount();
}

CWindow::~CWindow() {
    // As destroyWindow() does, but without the hook of derived windows.
    CWindow::stopAllTimers();
    CWindow::uninitialiseWindow();
    m_mouseListener = nullptr;
    m_dropFileListener = nullptr;
    m_keyboardListener = nullptr;
    m_windowChangeListener = nullptr;
    m_focusListener = nullptr;
    const bool isInMessage = m_parts.use_count() > 1;
    if (isInMessage)
        m_parts->replaceWindow(std::make_unique<CWindow>(m_rect));
    else
        m_parts->root.reset();  // while its controls can still call the window
    s_class.decrementInstanceCount();
}

void CWindow::dereference() {
    if (--m_referenceCount < 1)
        delete this;
}

void CWindow::getObjectDescription(char *array, long size) const {
    Tessitor::Basics::copyText(array, size, m_attributes->getWindowTitle().getString());
}

// Creation and destruction

void CWindow::setWindowAttributes(const CWindowAttributes *attributes, bool showWindow) {
    if (attributes == nullptr || isCreated())
        return;
    const std::shared_ptr<SWindowParts> held = m_parts;
    *m_attributes = *attributes;
    if (!createWindow() || !showWindow)
        return;
    openWindow();
    if (!held->isWindowGone())
        updateWindow();
}

bool CWindow::createWindow() {
    windowCreating();
    SNativeWindowOptions options;
    options.title = m_attributes->getWindowTitle().getString();
    options.className = std::string("com.tessitor.") +
                        CApplicationInformation::getApplicationName().getString() + "." +
                        options.title;
    options.style = m_attributes->getWindowStyle();
    options.extendedStyle = m_attributes->getExtendedWindowStyle();
    options.hasShadow = m_attributes->hasDropShadow();
    if (const Graphics::CWindowIcon *icon = m_attributes->getWindowIcon())
        options.icon = icon->getIcon();
    if (m_parentWindow != nullptr)
        options.parent = m_parentWindow->getWindowHandle()->native;
    options.bounds = m_rect.toNative();

    std::string reason;
    m_native = createNativeWindow(options, *this, reason);
    if (!isCreated() && !reason.empty())
        throw Exceptions::CException(reason.c_str(), "CWindow::createWindow()", true);
    if (!isCreated())
        return false;
    m_parts->handle.native = m_native->getHandle();
    m_native->hookWheel();
    setWindowAlpha(m_attributes->getAlpha());
    if (!m_attributes->isEnabled())
        disableWindow();
    m_parts->graphics.getNativeImage().setBackgroundColour(m_attributes->getBackgroundColour());
    windowCreated();
    return true;
}

void CWindow::destroyWindow() {
    if (!isCreated())
        return;
    windowDestroying();
    stopAllTimers();
    uninitialiseWindow();
}

// The native window reports NativeDestroy while it is destroyed. The listener that hears of it may
// delete this window.
void CWindow::uninitialiseWindow() {
    if (!isCreated())
        return;
    const std::shared_ptr<SWindowParts> held = m_parts;
    m_native->unhookWheel();
    std::unique_ptr<INativeWindow> native = std::move(m_native);
    native.reset();
    held->root->unlockAll();
    held->handle.native = nullptr;
}

// The native window. Each call may report messages before it returns, and their handlers may delete
// this window.

void CWindow::openWindow() {
    if (isCreated())
        m_native->show();
}

void CWindow::closeWindow() {
    if (!isCreated())
        return;
    const std::shared_ptr<SWindowParts> held = m_parts;
    m_native->hide();
    if (!held->isWindowGone())
        notifyClosed();
}

void CWindow::updateWindow() {
    if (isCreated())
        m_native->update();
}

bool CWindow::pumpWindow() {
    if (!isCreated())
        return true;
    const std::shared_ptr<SWindowParts> held = m_parts;
    m_native->pump();
    return !held->isWindowGone();
}

void CWindow::disableWindow() {
    if (isCreated())
        m_native->enable(false);
}

void CWindow::enableWindow() {
    if (isCreated())
        m_native->enable(true);
}

void CWindow::setWindowAlpha(double alpha) {
    m_attributes->setAlpha(alpha);
    if (isCreated())
        m_native->setAlpha(static_cast<std::uint8_t>(truncated(alpha * 255.0)));
}

// Drawing

void CWindow::drawWindow(Graphics::CGraphics &graphics) {
    m_parts->root->drawRootControl(graphics);
}

void CWindow::redrawWindow() {
    CWindow::redrawWindow(CRect(CPoint(0, 0), m_size));
}

void CWindow::redrawWindow(const CRect &area) {
    if (isCreated())
        m_native->invalidate(area.toNative());
}

// Position and size

void CWindow::setWindowPosition(const CPoint &position) {
    const std::shared_ptr<SWindowParts> held = m_parts;
    storePosition(position);
    if (isCreated())
        m_native->move({position.getXPosition(), position.getYPosition()});
    if (!held->isWindowGone())
        notifyMoved();
}

void CWindow::setWindowSize(const CDimension &size) {
    const std::shared_ptr<SWindowParts> held = m_parts;
    storeDimension(size);
    if (isCreated())
        m_native->moveAndResize(m_rect.toNative());
    if (!held->isWindowGone())
        notifySizeChanged();
}

void CWindow::setWindowPositionAndSize(const CRect &rect) {
    const std::shared_ptr<SWindowParts> held = m_parts;
    storePosition(CPoint(rect.getLeft(), rect.getTop()));
    storeDimension(CDimension(rect.getWidth(), rect.getHeight()));
    if (isCreated())
        m_native->moveAndResize(m_rect.toNative());
    if (!held->isWindowGone())
        notifyMoved();
    if (!held->isWindowGone())
        notifySizeChanged();
}

void CWindow::storePosition(const CPoint &position) {
    m_position = position;
    m_rect.setOrigin(position);
}

void CWindow::storeDimension(const CDimension &size) {
    m_size = size;
    m_rect.setDimension(size);
}

void CWindow::notifyMoved() {
    if (m_windowChangeListener != nullptr)
        m_windowChangeListener->windowMoved(this, m_position);
}

void CWindow::notifySizeChanged() {
    if (m_windowChangeListener != nullptr)
        m_windowChangeListener->windowSizeChanged(this, m_size);
}

bool CWindow::notifyClosed() {
    return m_windowChangeListener == nullptr || m_windowChangeListener->windowClosed(this);
}

bool CWindow::windowClosed(IWindow *) {
    if (CApplicationInformation::getMainWindow() == this)
        CApplicationInformation::quitApplication();
    return true;
}

}  // namespace Tessitor::GUI::Windowing
