#include "platform/linux/windowing/text/CXcbTextField.h"

#include "platform/NativeMouse.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"
#include "platform/linux/windowing/text/CXcbSelections.h"
#include "values/ToPointer.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int caretTimer = 1;
constexpr int blinkMs = 500;
// A press after a double click makes a triple click within these.
constexpr xcb_timestamp_t tripleClickMs = 500;
constexpr std::int32_t tripleClickPixels = 4;

void *toHandle(xcb_window_t window) {
    return toPointer<void *>(window);
}

xcb_window_t idOf(const void *handle) {
    return static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(handle));
}

std::int32_t xOf(std::intptr_t packed) {
    return static_cast<std::int16_t>(packed);
}

}  // namespace

CXcbTextField::CXcbTextField(const std::shared_ptr<CXcbConnection> &connection, xcb_window_t window,
                             const SNativeRect &area, const SNativeTextFieldSettings &settings)
    : m_connection(connection), m_parent(window), m_area(area),
      m_line(settings.text, static_cast<std::size_t>(std::max(settings.maximumLength, 0))),
      m_view(area.right - area.left, area.bottom - area.top, settings.font,
             {settings.textColour, settings.background}),
      m_selected(m_line.getText()) {}

CXcbTextField::~CXcbTextField() {
    m_listener = nullptr;
    m_window.reset();
}

bool CXcbTextField::open(INativeTextFieldListener &listener) {
    constexpr std::uint32_t popup = 0x80000000;
    SNativeWindowOptions options;
    options.className = "com.tessitor.TextField";
    options.style = popup;
    options.parent = toHandle(m_parent);
    options.bounds = m_area;
    std::string reason;
    m_window = createNativeWindow(options, *this, reason);
    if (m_window == nullptr)
        return false;
    m_view.scrollToCaret(m_line);
    m_window->show();
    m_window->bringToFront();
    showCaret();
    m_window->update();
    m_listener = &listener;
    return m_window->getHandle() != nullptr;
}

void *CXcbTextField::getHandle() const {
    return m_window->getHandle();
}

void CXcbTextField::getText(char *buffer, std::int32_t size) const {
    const std::string_view text = m_line.getText(static_cast<std::size_t>(size) - 1);
    *std::copy(text.begin(), text.end(), buffer) = '\0';
}

void CXcbTextField::end(ENativeTextFieldEnd how) {
    if (m_listener != nullptr)
        std::exchange(m_listener, nullptr)->handleTextFieldEnd(how);
}

// What the window reports

std::optional<std::intptr_t> CXcbTextField::handleMessage(unsigned message, std::uintptr_t wParam,
                                                          std::intptr_t lParam) {
    if (m_window == nullptr)
        return std::nullopt;
    switch (message) {
    case NativePaint:
        paint();
        return 0;
    case NativeKeyDown:
        handleKey(wParam);
        return 0;
    case NativeKillFocus:
        end(ENativeTextFieldEnd::FocusLost);
        return 0;
    case NativeLeftDown:
        handleLeftDown(xOf(lParam));
        return 0;
    case NativeMouseMove:
        handleDrag(xOf(lParam));
        return 0;
    case NativeLeftUp:
        handleLeftUp();
        return 0;
    case NativeDoubleClick:
        handleDoubleClick(xOf(lParam));
        return 0;
    case NativeMiddleDown:
        handleMiddleDown(xOf(lParam));
        return 0;
    default:
        return std::nullopt;
    }
}

void CXcbTextField::handleTimer(int) {
    m_isCaretShown = !m_isCaretShown;
    m_window->invalidate(m_view.getCaretArea(m_line));
}

void CXcbTextField::handleNativeDestroyed() {
    end(ENativeTextFieldEnd::FocusLost);
}

void CXcbTextField::paint() {
    m_window->paint([this](INativePaintTarget &target, const SNativeRect &dirty) {
        const std::unique_ptr<INativeSurface> surface = createNativeSurface(
            &target, m_area.right - m_area.left, m_area.bottom - m_area.top, SNativeColour());
        if (surface == nullptr)
            return;
        m_view.draw(*surface, dirty, m_line, m_isCaretShown);
        target.copyFrom(*surface, dirty);
    });
}

// Keys

void CXcbTextField::handleKey(std::uintptr_t key) {
    const SNativeModifiers modifiers = nativeModifierKeys();
    const EEditCommand command = editCommandOf(key, modifiers);
    if (command != EEditCommand::None) {
        handleCommand(command);
        return;
    }
    if (!applyEditKey(m_line, key, modifiers))
        m_line.insert(m_connection->keyboard().getText());
    handleChange();
}

void CXcbTextField::handleCommand(EEditCommand command) {
    switch (command) {
    case EEditCommand::Accept:
        end(ENativeTextFieldEnd::ReturnKey);
        return;
    case EEditCommand::Abandon:
        end(ENativeTextFieldEnd::EscapeKey);
        return;
    case EEditCommand::Copy:
        copy(m_connection->getAtoms().clipboard);
        return;
    case EEditCommand::Cut:
        copy(m_connection->getAtoms().clipboard);
        m_line.eraseSelection();
        handleChange();
        return;
    case EEditCommand::Paste:
        paste(m_connection->getAtoms().clipboard);
        return;
    case EEditCommand::None:
        return;
    }
}

// Mouse

void CXcbTextField::handleLeftDown(std::int32_t x) {
    const xcb_timestamp_t now = m_connection->getTime();
    if (m_doubleClick && now - m_doubleClick->time <= tripleClickMs &&
        std::abs(x - m_doubleClick->x) <= tripleClickPixels) {
        m_line.selectAll();
    } else {
        m_line.moveTo(m_view.positionAt(m_line, x), nativeModifierKeys().isShiftDown);
        m_isDragging = true;
        captureNativeMouse(getHandle());
    }
    m_doubleClick.reset();
    handleChange();
}

void CXcbTextField::handleDrag(std::int32_t x) {
    if (!m_isDragging)
        return;
    m_line.moveTo(m_view.positionAt(m_line, x), true);
    handleChange();
}

void CXcbTextField::handleLeftUp() {
    if (!std::exchange(m_isDragging, false))
        return;
    releaseNativeMouse();
    handleChange();
}

void CXcbTextField::handleDoubleClick(std::int32_t x) {
    m_line.selectWord(m_view.positionAt(m_line, x));
    m_doubleClick = {x, m_connection->getTime()};
    handleChange();
}

void CXcbTextField::handleMiddleDown(std::int32_t x) {
    m_line.moveTo(m_view.positionAt(m_line, x), false);
    handleChange();
    paste(XCB_ATOM_PRIMARY);
}

// Clipboard and primary selection

// The text belongs to the parent, since it has to outlive the field.
void CXcbTextField::copy(xcb_atom_t selection) {
    if (m_line.hasSelection())
        m_connection->selections().offer(m_parent, selection, m_line.getSelectedText());
}

// The field may be gone when the text arrives, and its request with it.
void CXcbTextField::paste(xcb_atom_t selection) {
    m_connection->selections().request(idOf(getHandle()), selection,
                                       [this](const std::string &text) {
                                           m_line.insert(text);
                                           handleChange();
                                       });
}

// What is seen

void CXcbTextField::handleChange() {
    if (!m_isDragging && m_line.getSelectedText() != m_selected) {
        m_selected = m_line.getSelectedText();
        copy(XCB_ATOM_PRIMARY);
    }
    m_view.scrollToCaret(m_line);
    m_window->invalidate({0, 0, m_area.right - m_area.left, m_area.bottom - m_area.top});
    showCaret();
}

void CXcbTextField::showCaret() {
    m_isCaretShown = true;
    m_window->startTimer(caretTimer, blinkMs);
}
