#include "editor/driven/CDesktop.h"

#include "platform/win32/drawing/CountObjects.h"
#include "platform/win32/windowing/CountWindows.h"
#include "platform/win32/windowing/Input.h"

#include <cstdlib>
#include <string_view>

namespace {

constexpr const char *hostClass = "driven host";

LRESULT CALLBACK hostProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // The keys that it has heard
    if (message == WM_KEYDOWN)
        SetWindowLongPtrA(window, GWLP_USERDATA, GetWindowLongPtrA(window, GWLP_USERDATA) + 1);
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND toWindow(void *handle) {
    return static_cast<HWND>(handle);
}

HWND createWindow(HWND parent, DWORD style, const SNativeRect &area) {
    return CreateWindowExA(0, hostClass, "host", style, area.left, area.top, area.right - area.left,
                           area.bottom - area.top, parent, nullptr, nullptr, nullptr);
}

bool isMenu(HWND window) {
    char name[64] = {};
    GetClassNameA(window, name, sizeof name);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return IsWindowVisible(window) && process == GetCurrentProcessId() &&
           std::string_view(name).starts_with("com.tessitor.");
}

std::vector<HWND> menus() {
    std::vector<HWND> found;
    const auto collect = [](HWND window, LPARAM windows) -> BOOL {
        if (isMenu(window))
            reinterpret_cast<std::vector<HWND> *>(windows)->push_back(window);
        return TRUE;
    };
    EnumWindows(collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// @param window  null for the screen.
CPicture pictureFrom(HWND window, const SNativeRect &area) {
    const int width = area.right - area.left, height = area.bottom - area.top;
    const HDC context = GetDC(window);
    const HDC memory = CreateCompatibleDC(context);
    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;  // from the top
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void *bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(memory, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, context, area.left, area.top, SRCCOPY);
    GdiFlush();
    CPicture picture(width, height);
    const auto *pixels = static_cast<const std::uint32_t *>(bits);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.at(x, y) = *pixels++ & 0xFFFFFF;
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, context);
    return picture;
}

/// Without a window manager, Wine waits two seconds for it whenever a window ends that the screen
/// shows. This has Wine do without one. To be called before Wine shows anything.
void liveWithoutWindowManager() {
    constexpr const char *key = R"(Software\Wine\AppDefaults\driven_editor_tests.exe\X11 Driver)";
    RegSetKeyValueA(HKEY_CURRENT_USER, key, "Managed", REG_SZ, "N", 2);
}

}  // namespace

struct CDesktop::SSystem {
    SSystem() {
        liveWithoutWindowManager();
        WNDCLASSA description = {};
        description.lpszClassName = hostClass;
        description.lpfnWndProc = hostProcedure;
        description.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
        RegisterClassA(&description);
        screen = createWindow(nullptr, WS_POPUP | WS_VISIBLE,
                              {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
        SetForegroundWindow(screen);
    }

    HWND screen = nullptr;  // a background for the hosts
    bool isPressed = false;
};

std::vector<CDesktop::EWindowManager> CDesktop::windowManagers() {
    return {EWindowManager::None};
}

CDesktop::CDesktop(EWindowManager) : m_system(std::make_unique<SSystem>()) {}

CDesktop::~CDesktop() {
    if (m_system->isPressed)
        release();
    DestroyWindow(m_system->screen);
    UnregisterClassA(hostClass, nullptr);
}

// The host

void *CDesktop::createHostWindow(const SNativeRect &area) {
    const HWND window = createWindow(m_system->screen, WS_CHILD | WS_VISIBLE, area);
    SetFocus(window);
    handleMessages();
    return window;
}

// Not a child: it may belong to another thread.
void *CDesktop::createHiddenHostWindow(const SNativeRect &area) {
    return createWindow(nullptr, WS_POPUP, area);
}

void CDesktop::showHostWindow(void *window, const SNativeRect &area) {
    MoveWindow(toWindow(window), area.left, area.top, area.right - area.left,
               area.bottom - area.top, TRUE);
    ShowWindow(toWindow(window), SW_SHOW);
    SetForegroundWindow(toWindow(window));
    SetFocus(toWindow(window));
    handleMessages();
}

void CDesktop::moveHostWindow(void *window, SNativePoint position) {
    // A user presses a button on the frame.
    SetForegroundWindow(toWindow(window));
    SetWindowPos(toWindow(window), nullptr, position.x, position.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CDesktop::minimiseHostWindow(void *window) {
    ShowWindow(toWindow(window), SW_MINIMIZE);
    // Unlike Windows, Wine does not activate the next window.
    SetForegroundWindow(m_system->screen);
}

void CDesktop::destroyHostWindow(void *window) {
    DestroyWindow(toWindow(window));
}

SNativePoint CDesktop::originOf(void *window) const {
    POINT origin = {};
    ClientToScreen(toWindow(window), &origin);
    return {origin.x, origin.y};
}

// When a menu ends, Windows gives the keyboard to the top level window of the host.
bool CDesktop::hasKeyboard(void *window) const {
    return GetFocus() == window || GetFocus() == GetAncestor(toWindow(window), GA_ROOT);
}

int CDesktop::takeKeys(void *window) {
    handleMessages();
    LONG_PTR keys = 0;
    for (const HWND heard : {toWindow(window), GetAncestor(toWindow(window), GA_ROOT)})
        keys += SetWindowLongPtrA(heard, GWLP_USERDATA, 0);
    return static_cast<int>(keys);
}

// The user

void CDesktop::movePointer(SNativePoint position) {
    moveMouse(position);
}

void CDesktop::press() {
    m_system->isPressed = true;
    sendMouse(MOUSEEVENTF_LEFTDOWN);
}

void CDesktop::release() {
    m_system->isPressed = false;
    sendMouse(MOUSEEVENTF_LEFTUP);
}

void CDesktop::turnWheel(int notches) {
    for (int i = 0; i < std::abs(notches); ++i)
        sendMouse(MOUSEEVENTF_WHEEL, notches > 0 ? WHEEL_DELTA : -WHEEL_DELTA);
}

void CDesktop::typeSpace() {
    sendKey(VK_SPACE, true);
    sendKey(VK_SPACE, false);
}

void CDesktop::settle(const std::function<void()> &idle) {
    for (int i = 0; i < 3; ++i) {
        handleMessages();
        idle();
    }
}

// What can be seen

CPicture CDesktop::pictureOf(void *window, int width, int height) const {
    return pictureFrom(toWindow(window), {0, 0, width, height});
}

CPicture CDesktop::pictureOfScreen(const SNativeRect &area) const {
    return pictureFrom(nullptr, area);
}

std::optional<SNativeRect> CDesktop::openMenu() const {
    const std::vector<HWND> open = menus();
    if (open.empty())
        return std::nullopt;
    RECT area = {};
    GetWindowRect(open.front(), &area);
    return SNativeRect{area.left, area.top, area.right, area.bottom};
}

int CDesktop::countMenus() const {
    return static_cast<int>(menus().size());
}

int CDesktop::countChildren(void *window) const {
    int count = 0;
    for (HWND child = GetWindow(toWindow(window), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
        ++count;
    return count;
}

bool CDesktop::isPointerFree() const {
    return GetCapture() == nullptr;
}

bool CDesktop::isKeyboardFree() const {
    return true;  // Windows has no grab of the keyboard
}

CDesktop::Resources CDesktop::countResources() const {
    handleMessages();
    return {{"GDI objects", countObjects()}, {"USER objects", countWindows()}};
}

bool CDesktop::willHave(const Resources &resources) const {
    return countResources() == resources;
}
