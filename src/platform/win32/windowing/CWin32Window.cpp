#include "platform/win32/windowing/CWin32Window.h"

#include "platform/NativeModule.h"
#include "platform/win32/drawing/IDeviceContext.h"
#include "platform/win32/windowing/TiedPopup.h"
#include "platform/win32/windowing/WindowClass.h"
#include "values/ToPointer.h"

#include <utility>

CWin32Window::~CWin32Window() {
    m_reportsEnd = false;
    CWin32Window::unhookWheel();
    // Windows refuses another thread than the window's. The window then stays without an object.
    if (m_handle != nullptr && !DestroyWindow(m_handle))
        SetWindowLongPtrA(m_handle, GWLP_USERDATA, 0);
    unregisterWindowClass(m_className);
}

bool CWin32Window::create(const SNativeWindowOptions &options) {
    m_className = options.className;
    const auto &[left, top, right, bottom] = options.bounds;
    CreateWindowExA(options.extendedStyle, options.className.c_str(), options.title.c_str(),
                    options.style, left, top, right - left, bottom - top,
                    static_cast<HWND>(options.parent), nullptr,
                    static_cast<HINSTANCE>(nativeModuleHandle()), this);
    m_reportsEnd = m_handle != nullptr;
    return m_reportsEnd;
}

// Messages

LRESULT CALLBACK CWin32Window::procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto *window =
            static_cast<CWin32Window *>(toPointer<const CREATESTRUCTA *>(lParam)->lpCreateParams);
        window->m_handle = handle;
        const auto low = static_cast<LONG>(reinterpret_cast<LONG_PTR>(window));
        SetWindowLongPtrA(handle, GWLP_USERDATA, low);
    }
    std::optional<std::intptr_t> result;
    if (CWin32Window *window = find(handle))
        result = window->m_listener.handleMessage(message, wParam, lParam);
    // From here on, the listener may have destroyed the window.
    const LRESULT answer =
        result.has_value() ? *result : DefWindowProcA(handle, message, wParam, lParam);
    CWin32Window *window = message == WM_NCDESTROY ? find(handle) : nullptr;
    if (window != nullptr)
        window->handleEnd();
    return answer;
}

void CWin32Window::handleEnd() {
    SetWindowLongPtrA(m_handle, GWLP_USERDATA, 0);
    unhookWheel();
    destroyTiedPopup(std::exchange(m_handle, nullptr));
    if (m_reportsEnd)
        m_listener.handleNativeDestroyed();
}

CWin32Window *CWin32Window::find(HWND handle) {
    return toPointer<CWin32Window *>(GetWindowLongPtrA(handle, GWLP_USERDATA));
}

// Where and how the window is seen

SNativeRect CWin32Window::getScreenArea() const {
    RECT area = {};
    GetWindowRect(m_handle, &area);
    return {area.left, area.top, area.right, area.bottom};
}

void CWin32Window::show() {
    ShowWindow(m_handle, SW_SHOW);
}

void CWin32Window::hide() {
    ShowWindow(m_handle, SW_HIDE);
}

void CWin32Window::enable(bool isEnabled) {
    EnableWindow(m_handle, isEnabled ? TRUE : FALSE);
}

void CWin32Window::bringToFront() {
    SetForegroundWindow(m_handle);
}

void CWin32Window::setTitle(const std::string &title) {
    SetWindowTextA(m_handle, title.c_str());
}

void CWin32Window::setAlpha(std::uint8_t alpha) {
    SetLayeredWindowAttributes(m_handle, 0, alpha, LWA_ALPHA);
}

void CWin32Window::move(SNativePoint position) {
    SetWindowPos(m_handle, nullptr, position.x, position.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER);
}

void CWin32Window::moveAndResize(const SNativeRect &bounds) {
    MoveWindow(m_handle, bounds.left, bounds.top, bounds.right - bounds.left,
               bounds.bottom - bounds.top, TRUE);
}

// Painting

namespace {

/// A painting that has begun. It does not need the window object.
class CPainting : public INativePaintTarget, public IDeviceContext {
public:
    explicit CPainting(HWND window) : m_window(window) { BeginPaint(window, &m_paint); }
    ~CPainting() override { EndPaint(m_window, &m_paint); }
    CPainting(const CPainting &) = delete;
    CPainting &operator=(const CPainting &) = delete;

    bool hasBegun() const { return m_paint.hdc != nullptr; }
    SNativeRect getDirtyArea() const {
        const RECT &area = m_paint.rcPaint;
        return {area.left, area.top, area.right, area.bottom};
    }
    HDC getDeviceContext() const override { return m_paint.hdc; }
    void copyFrom(const INativeSurface &source, const SNativeRect &area) override {
        copyArea(m_paint.hdc, source, area);
    }

private:
    HWND m_window;
    PAINTSTRUCT m_paint = {};
};

}  // namespace

// Without a window, Windows would take the whole screen in these two.
void CWin32Window::invalidate(const SNativeRect &area) {
    const RECT rect = {area.left, area.top, area.right, area.bottom};
    if (m_handle != nullptr)
        InvalidateRect(m_handle, &rect, FALSE);
}

void CWin32Window::update() {
    if (m_handle != nullptr)
        UpdateWindow(m_handle);
}

void CWin32Window::paint(const PaintCallback &callback) {
    CPainting painting(m_handle);
    if (painting.hasBegun())
        callback(painting, painting.getDirtyArea());
}

// Timers

bool CWin32Window::startTimer(int id, int milliseconds) {
    return id > 0 && milliseconds > 0 && m_handle != nullptr &&
           SetTimer(m_handle, static_cast<UINT_PTR>(id), static_cast<UINT>(milliseconds),
                    timerProcedure) != 0;
}

void CWin32Window::stopTimer(int id) {
    if (m_handle != nullptr)
        KillTimer(m_handle, static_cast<UINT_PTR>(id));
}

void CALLBACK CWin32Window::timerProcedure(HWND handle, UINT, UINT_PTR id, DWORD) {
    if (CWin32Window *window = find(handle))
        window->m_listener.handleTimer(static_cast<int>(id));
}

// The mouse

void CWin32Window::trackMouseLeave() {
    TRACKMOUSEEVENT request = {sizeof(TRACKMOUSEEVENT), TME_LEAVE, m_handle, 0};
    TrackMouseEvent(&request);
}

HWND CWin32Window::s_hookWindow = nullptr;

void CWin32Window::hookWheel() {
    if (m_handle == nullptr)
        return;
    unhookWheel();
    m_hook =
        SetWindowsHookExA(WH_MOUSE, hookProcedure, static_cast<HINSTANCE>(nativeModuleHandle()), 0);
    s_hookWindow = m_handle;
}

void CWin32Window::unhookWheel() {
    if (m_hook == nullptr)
        return;
    UnhookWindowsHookEx(m_hook);
    m_hook = nullptr;
    if (s_hookWindow == m_handle)
        s_hookWindow = nullptr;
}

// Called on each thread of the process that takes a mouse message from its queue.
LRESULT CALLBACK CWin32Window::hookProcedure(int code, WPARAM wParam, LPARAM lParam) {
    if (code >= 0 && wParam == WM_MOUSEWHEEL &&
        sendHookedWheel(*toPointer<const MOUSEHOOKSTRUCTEX *>(lParam)))
        return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

bool CWin32Window::sendHookedWheel(const MOUSEHOOKSTRUCTEX &mouse) {
    CWin32Window *window = s_hookWindow != nullptr ? find(s_hookWindow) : nullptr;
    RECT area;
    POINT position;
    if (window == nullptr ||
        GetWindowThreadProcessId(s_hookWindow, nullptr) != GetCurrentThreadId() ||
        !GetWindowRect(s_hookWindow, &area) || !GetCursorPos(&position) ||
        !PtInRect(&area, position))
        return false;
    const std::uintptr_t movement = mouse.mouseData & 0xFFFF0000;
    return window->m_listener.handleMessage(NativeMouseWheel, movement, 0) == 0;
}
