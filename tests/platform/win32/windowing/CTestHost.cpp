#include "platform/windowing/CTestHost.h"

#include <windows.h>

struct CTestHost::SSystem {
    // Without a window manager, Wine takes two seconds to end a window that the screen shows. So
    // the windows of the tests are children of one that stays.
    HWND screen = create(nullptr, WS_POPUP | WS_VISIBLE, 50, 60);

    static HWND create(HWND parent, DWORD style, int x, int y) {
        return CreateWindowExA(0, "STATIC", "host", style, x, y, 300, 200, parent, nullptr, nullptr,
                               nullptr);
    }
};

CTestHost::CTestHost() : m_system(std::make_unique<SSystem>()) {}

CTestHost::~CTestHost() {
    DestroyWindow(m_system->screen);
}

void *CTestHost::createWindow() {
    return SSystem::create(m_system->screen, WS_CHILD | WS_VISIBLE, 0, 0);
}

void CTestHost::destroyWindow(void *window) {
    DestroyWindow(static_cast<HWND>(window));
}

bool CTestHost::pumpUntil(const std::function<bool()> &isMet) {
    const ULONGLONG deadline = GetTickCount64() + 5000;
    while (!isMet()) {
        if (GetTickCount64() > deadline)
            return false;
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
    }
    return true;
}
