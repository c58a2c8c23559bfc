#include "platform/windowing/CTestUser.h"

#include <windows.h>

struct CTestUser::SSystem {};

CTestUser::CTestUser(CTestHost &host) : m_host(host) {}

CTestUser::~CTestUser() = default;

namespace {

HWND handleOf(const INativeTextField &field) {
    return static_cast<HWND>(field.getHandle());
}

}  // namespace

void CTestUser::type(const INativeTextField &field, const char *text) {
    for (; *text != '\0'; ++text)
        SendMessageA(handleOf(field), WM_CHAR, static_cast<WPARAM>(*text), 1);
}

void CTestUser::pressReturn(const INativeTextField &field) {
    SendMessageA(handleOf(field), WM_KEYDOWN, VK_RETURN, 1);
}

void CTestUser::pressEscape(const INativeTextField &field) {
    SendMessageA(handleOf(field), WM_KEYDOWN, VK_ESCAPE, 1);
}

void CTestUser::goTo(void *window) {
    SetFocus(static_cast<HWND>(window));
}

SNativeRect CTestUser::screenAreaOf(const INativeTextField &field) {
    RECT area = {};
    GetWindowRect(handleOf(field), &area);
    return {area.left, area.top, area.right, area.bottom};
}

std::uint32_t CTestUser::pixelOf(const INativeTextField &field, int x, int y) {
    const HDC context = GetDC(handleOf(field));
    const COLORREF colour = GetPixel(context, x, y);
    ReleaseDC(handleOf(field), context);
    return static_cast<std::uint32_t>(GetRValue(colour) << 16 | GetGValue(colour) << 8 |
                                      GetBValue(colour));
}
