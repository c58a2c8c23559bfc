#include "platform/win32/windowing/CWin32TextField.h"

#include "platform/NativeModule.h"
#include "platform/win32/drawing/CWin32Font.h"
#include "platform/win32/windowing/TiedPopup.h"
#include "values/ToPointer.h"

#include <utility>

namespace {

TGdiObject<HFONT> copyOf(const INativeFont *font) {
    LOGFONTA record = {};
    if (font == nullptr || GetObjectA(handleOf(*font), sizeof record, &record) == 0)
        return nullptr;
    return TGdiObject<HFONT>(CreateFontIndirectA(&record));
}

RECT onScreen(HWND window, const SNativeRect &area) {
    RECT rect = toRect(area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT *>(&rect), 2);
    return rect;
}

}  // namespace

CWin32TextField::CWin32TextField(HWND window, const SNativeTextFieldSettings &settings)
    : m_window(window), m_textColour(settings.textColour), m_background(settings.background),
      m_brush(CreateSolidBrush(toColorref(settings.background))), m_font(copyOf(settings.font)) {}

CWin32TextField::~CWin32TextField() {
    m_listener = nullptr;
    if (m_handle != nullptr)
        DestroyWindow(m_handle);
}

bool CWin32TextField::open(const SNativeTextFieldSettings &settings,
                           INativeTextFieldListener &listener) {
    const RECT area = onScreen(m_window, settings.area);
    m_handle = CreateWindowExA(
        0, "EDIT", settings.text, WS_POPUP | WS_VISIBLE | ES_AUTOHSCROLL | settings.styleBits,
        area.left, area.top, area.right - area.left, area.bottom - area.top, m_window, nullptr,
        static_cast<HINSTANCE>(nativeModuleHandle()), nullptr);
    if (m_handle == nullptr)
        return false;
    tiePopup(m_window, m_handle);
    SetWindowLongPtrA(m_handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_editProcedure = toPointer<WNDPROC>(
        SetWindowLongPtrA(m_handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    SendMessageA(m_handle, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), FALSE);
    SendMessageA(m_handle, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    SendMessageA(m_handle, EM_SETSEL, 0, -1);
    if (settings.maximumLength > 0)
        SendMessageA(m_handle, EM_LIMITTEXT, static_cast<WPARAM>(settings.maximumLength), 0);
    SetFocus(m_handle);
    // Whoever answers for its colours may not have known it while it was created.
    InvalidateRect(m_handle, nullptr, TRUE);
    m_listener = &listener;
    return m_handle != nullptr;
}

void CWin32TextField::getText(char *buffer, std::int32_t size) const {
    *buffer = '\0';
    if (m_handle != nullptr)
        GetWindowTextA(m_handle, buffer, size);
}

std::intptr_t CWin32TextField::colour(void *deviceContext) {
    const auto context = static_cast<HDC>(deviceContext);
    SetTextColor(context, toColorref(m_textColour));
    SetBkColor(context, toColorref(m_background));
    return reinterpret_cast<std::intptr_t>(m_brush.get());
}

void CWin32TextField::end(ENativeTextFieldEnd how) {
    if (m_listener != nullptr)
        std::exchange(m_listener, nullptr)->handleTextFieldEnd(how);
}

LRESULT CALLBACK CWin32TextField::procedure(HWND handle, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    auto *field = toPointer<CWin32TextField *>(GetWindowLongPtrA(handle, GWLP_USERDATA));
    const WNDPROC editProcedure = field->m_editProcedure;
    // After each report, the field and its window may be gone.
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS;
    case WM_KEYDOWN:
        if (wParam != VK_RETURN && wParam != VK_ESCAPE)
            break;
        field->end(wParam == VK_RETURN ? ENativeTextFieldEnd::ReturnKey
                                       : ENativeTextFieldEnd::EscapeKey);
        return 0;
    case WM_KILLFOCUS:
        field->end(ENativeTextFieldEnd::FocusLost);
        if (!IsWindow(handle))
            return 0;
        break;
    case WM_NCDESTROY:
        untiePopup(field->m_window, handle);
        field->m_handle = nullptr;
        SetWindowLongPtrA(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(editProcedure));
        field->end(ENativeTextFieldEnd::FocusLost);
        break;
    default:
        break;
    }
    return CallWindowProcA(editProcedure, handle, message, wParam, lParam);
}
