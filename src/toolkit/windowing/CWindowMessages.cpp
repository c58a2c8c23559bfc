// The message procedure of a window.
#include "foundation/CString.h"
#include "platform/NativeDrop.h"
#include "platform/NativeKeyboard.h"
#include "platform/NativeMouse.h"
#include "toolkit/events/CDropEvent.h"
#include "toolkit/events/INativeChildHolder.h"
#include "toolkit/graphics/Painting.h"
#include "toolkit/windowing/CWindow.h"
#include "values/ToPointer.h"

namespace Tessitor::GUI::Windowing {

using Listeners::IMouseListener;
using MathTools::CDimension;
using MathTools::CPoint;
using MathTools::CRect;

namespace {

constexpr std::nullopt_t byDefault = std::nullopt;
constexpr std::intptr_t refused = -1;
constexpr std::uintptr_t backspace = 8;

std::int16_t signedLow(std::intptr_t packed) {
    return static_cast<std::int16_t>(packed);
}

std::int16_t signedHigh(std::intptr_t packed) {
    return static_cast<std::int16_t>(packed >> 16);
}

INativeChildHolder *findHolder(Controls::IControlRoot &root, void *child);

INativeChildHolder *findHolder(Controls::IControl *control, void *child) {
    if (auto *panel = dynamic_cast<Controls::IControlRoot *>(control))
        return findHolder(*panel, child);
    auto *holder = dynamic_cast<INativeChildHolder *>(control);
    return holder != nullptr && holder->holdsNativeChild(child) ? holder : nullptr;
}

INativeChildHolder *findHolder(Controls::IControlRoot &root, void *child) {
    for (std::int32_t i = 0; i < root.getNumberOfControls(); ++i)
        if (INativeChildHolder *holder = findHolder(root.getControlAtIndex(i, true), child))
            return holder;
    return findHolder(root.getModalControl(), child);
}

}  // namespace

CWindow::Result CWindow::windowProcess(unsigned message, std::uintptr_t wParam,
                                       std::intptr_t lParam) {
    switch (message) {
    case NativeDestroy:
        return handleDestroy();
    case NativeMove:
        storeMove(lParam);
        return byDefault;
    case NativeSize:
        storeSize(lParam);
        return byDefault;
    case NativeSetFocus:
        return handleFocus();
    case NativeKillFocus:
        if (m_focusListener != nullptr)
            m_focusListener->lostFocus(this);
        return byDefault;
    case NativePaint:
        return handlePaint();
    case NativeClose:
        return handleClose();
    case NativeEraseBackground:
        return 1;
    case NativeKeyDown:
    case NativeKeyUp:
        return handleKey(message, wParam, lParam);
    case NativeTimer:
        return 0;  // timers are reported on their own
    case NativeColourEdit:
    case NativeColourLabel:
        return handleChildColour(wParam, lParam);
    case NativeDropFiles:
        return handleDrop(wParam);
    default:
        return handleMouse(message, wParam, lParam);
    }
}

// The window itself. After each call of a listener, the window may be gone.

CWindow::Result CWindow::handleDestroy() {
    const std::shared_ptr<SWindowParts> held = m_parts;
    if (!notifyClosed())
        return refused;
    if (!held->isWindowGone() && isCreated())
        m_native->unhookWheel();
    return byDefault;
}

CWindow::Result CWindow::handleClose() {
    return notifyClosed() ? Result(byDefault) : refused;
}

CWindow::Result CWindow::handleFocus() {
    const std::shared_ptr<SWindowParts> held = m_parts;
    if (m_focusListener != nullptr)
        m_focusListener->gainedFocus(this);
    if (!held->isWindowGone() && isCreated()) {
        m_native->unhookWheel();
        m_native->hookWheel();
    }
    return byDefault;
}

void CWindow::storeMove(std::intptr_t lParam) {
    storePosition(CPoint(signedLow(lParam), signedHigh(lParam)));
    notifyMoved();
}

void CWindow::storeSize(std::intptr_t lParam) {
    storeDimension(
        CDimension(static_cast<std::uint16_t>(lParam), static_cast<std::uint16_t>(lParam >> 16)));
    notifySizeChanged();
}

CWindow::Result CWindow::handlePaint() {
    if (!isCreated())
        return byDefault;
    const std::shared_ptr<SWindowParts> held = m_parts;
    m_native->paint([&](INativePaintTarget &target, const SNativeRect &invalid) {
        CRect dirty;
        dirty.fromNative(invalid);
        Graphics::paintWindow(held->graphics, target, m_size, dirty,
                              [this](Graphics::CGraphics &graphics) { drawWindow(graphics); });
    });
    return 0;
}

CWindow::Result CWindow::handleChildColour(std::uintptr_t wParam, std::intptr_t lParam) {
    INativeChildHolder *holder =
        findHolder(*m_parts->root, toPointer<void *>(static_cast<std::uintptr_t>(lParam)));
    return holder != nullptr ? holder->colourNativeChild(toPointer<void *>(wParam)) : refused;
}

// Mouse

CWindow::Result CWindow::handleMouse(unsigned message, std::uintptr_t wParam,
                                     std::intptr_t lParam) {
    switch (message) {
    case NativeLeftDown:
        return handleButtonDown(message, lParam, &IMouseListener::handleLeftButtonDown);
    case NativeLeftUp:
        return handleButtonUp(message, lParam, &IMouseListener::handleLeftButtonUp);
    case NativeRightDown:
        return handleButtonDown(message, lParam, &IMouseListener::handleRightButtonDown);
    case NativeRightUp:
        return handleButtonUp(message, lParam, &IMouseListener::handleRightButtonUp);
    case NativeMouseWheel:
        return handleWheel(wParam);
    case NativeMouseMove:
        if (!hasMouseListener())
            return byDefault;
        updateMousePosition(lParam);
        trackMouseLeave();
        sendMouseEvent(message, &IMouseListener::handleMouseMovement);
        return 0;
    case NativeDoubleClick:
        if (!hasMouseListener())
            return byDefault;
        updateMousePosition(lParam);
        sendMouseEvent(message, &IMouseListener::handleDoubleClick);
        return 0;
    case NativeMouseLeave:
        if (!hasMouseListener())
            return byDefault;
        updateMousePosition(lParam);
        sendMouseEvent(message, &IMouseListener::handleMouseLeaving);
        return 0;
    default:
        return byDefault;
    }
}

CWindow::Result CWindow::handleButtonDown(unsigned message, std::intptr_t lParam,
                                          MouseHandler handler) {
    if (!hasMouseListener())
        return refused;
    if (!m_parts->mouse.isCaptured())
        m_parts->mouse.captureMouse(this);
    updateMousePosition(lParam);
    trackMouseLeave();
    sendMouseEvent(message, handler);
    return 0;
}

CWindow::Result CWindow::handleButtonUp(unsigned message, std::intptr_t lParam,
                                        MouseHandler handler) {
    if (!hasMouseListener())
        return refused;
    if (m_parts->mouse.isCaptured())
        m_parts->mouse.releaseMouse();
    updateMousePosition(lParam);
    sendMouseEvent(message, handler);
    return 0;
}

// The position in the message is on the screen, and a hooked message has none.
CWindow::Result CWindow::handleWheel(std::uintptr_t wParam) {
    if (!hasMouseListener())
        return refused;
    const SNativePoint mouse = nativeMousePosition();
    const SNativeRect window = isCreated() ? m_native->getScreenArea() : SNativeRect();
    setMousePosition(CPoint(mouse.x - window.left, mouse.y - window.top));
    m_parts->mouseEvent.setWheelAmount(signedHigh(static_cast<std::intptr_t>(wParam)) / 120.0);
    sendMouseEvent(NativeMouseWheel, &IMouseListener::handleMouseScroll);
    return 0;
}

void CWindow::updateMousePosition(std::intptr_t lParam) {
    setMousePosition(CPoint(signedLow(lParam), signedHigh(lParam)));
}

void CWindow::setMousePosition(const CPoint &position) {
    const auto [isControlDown, isShiftDown, isAltDown] = nativeModifierKeys();
    m_parts->mouse.setPosition(position);
    m_parts->mouseEvent.setModifiers(isControlDown, isShiftDown, isAltDown);
}

void CWindow::trackMouseLeave() {
    if (isCreated())
        m_native->trackMouseLeave();
}

void CWindow::sendMouseEvent(unsigned message, MouseHandler handler) {
    m_parts->mouseEvent.setType(static_cast<Events::EMouseEventType>(message));
    (m_mouseListener->*handler)(m_parts->mouseEvent);
}

// Keys

CWindow::Result CWindow::handleKey(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) {
    if (!hasKeyboardListener())
        return 1;
    prepareKey(wParam, lParam);
    return sendKey(message == NativeKeyDown) ? 0 : 1;
}

bool CWindow::handleKeyboardHook(int code, std::uintptr_t wParam, std::intptr_t lParam) {
    if (code < 0 || !hasKeyboardListener())
        return false;
    const std::shared_ptr<SWindowParts> held = m_parts;
    prepareKey(wParam, lParam);
    if (held->keyboardEvent.isSpecialKey())
        held->keyboardEvent.setCharacter(' ', true);
    const bool isDown = (lParam & 0x80000000) == 0;
    return sendKey(isDown);
}

void CWindow::prepareKey(std::uintptr_t wParam, std::intptr_t lParam) {
    const auto [number, character] = nativeCharacterOf(wParam, lParam);
    const auto [isControlDown, isShiftDown, isAltDown] = nativeModifierKeys();
    const bool isPrintable = number == 1 && wParam != backspace;
    Events::CKeyboardEvent &event = m_parts->keyboardEvent;
    event.setKeyCode(Events::CKeyboardEvent::keyCodeOf(static_cast<int>(wParam)));
    event.setCharacter(character, !isPrintable);
    event.setModifiers(isControlDown, isShiftDown, isAltDown);
}

bool CWindow::sendKey(bool isDown) {
    return isDown ? m_keyboardListener->handleKeyDown(m_parts->keyboardEvent)
                  : m_keyboardListener->handleKeyUp(m_parts->keyboardEvent);
}

// Dropped files

namespace {

/// Finishes a drop, even if its listener throws.
struct SDropEnd {
    ~SDropEnd() { finishNativeDrop(wParam); }
    std::uintptr_t wParam;
};

void sendDrop(Listeners::IDropFileListener &listener, std::uintptr_t wParam) {
    const SDropEnd end{wParam};
    const auto [names, position] = readNativeDrop(wParam);
    Events::CDropEvent event(CPoint(position.x, position.y));
    for (const std::string &name : names)
        event.addFilename(new Tessitor::Basics::CString(name.c_str()));
    listener.handleFileDrop(event);
}

}  // namespace

CWindow::Result CWindow::handleDrop(std::uintptr_t wParam) {
    if (!hasDropFileListener()) {
        finishNativeDrop(wParam);
        return refused;
    }
    const std::shared_ptr<SWindowParts> held = m_parts;
    sendDrop(*m_dropFileListener, wParam);
    if (!held->isWindowGone() && isCreated())
        m_native->bringToFront();
    return 0;
}

}  // namespace Tessitor::GUI::Windowing
