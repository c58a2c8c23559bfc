#include "platform/INativeWindow.h"
#include "platform/NativeDrop.h"
#include "platform/NativeKeyboard.h"
#include "platform/NativeModule.h"
#include "platform/NativeMouse.h"
#include "platform/win32/windowing/Input.h"
#include "platform/win32/windowing/LowMemory.h"
#include "platform/win32/windowing/RemoveHooks.h"
#include "platform/win32/windowing/SampleDrop.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>
#include <utility>
#include <vector>
#include <windows.h>

namespace {

using testing::ElementsAre;

struct SMessage {
    unsigned number;
    std::uintptr_t wParam;
    std::intptr_t lParam;
};

class CListener : public INativeWindowListener {
public:
    std::vector<SMessage> messages;
    std::vector<int> timers;
    int ends = 0;
    std::function<std::optional<std::intptr_t>(const SMessage &)> onMessage;
    std::function<void()> onTimer;

    std::optional<std::intptr_t> handleMessage(unsigned message, std::uintptr_t wParam,
                                               std::intptr_t lParam) override {
        messages.push_back({message, wParam, lParam});
        return onMessage ? onMessage(messages.back()) : std::nullopt;
    }
    void handleTimer(int id) override {
        timers.push_back(id);
        if (onTimer)
            onTimer();
    }
    void handleNativeDestroyed() override { ++ends; }

    /// The last message of a number since the last call of messages.clear(); its count is 0 or
    /// more.
    const SMessage *find(unsigned number) const {
        for (auto i = messages.rbegin(); i != messages.rend(); ++i)
            if (i->number == number)
                return &*i;
        return nullptr;
    }
};

/// A child window of a host's window of 300 by 200. The tests share the host: without a window
/// manager, Wine takes two seconds to end a window that the screen shows.
class CWin32Window : public testing::Test {
protected:
    static void SetUpTestSuite() { hostWindow = createParent(nullptr, WS_POPUP | WS_VISIBLE); }
    static void TearDownTestSuite() { DestroyWindow(hostWindow); }
    static HWND createParent(HWND parent, DWORD style) {
        return CreateWindowExA(0, "STATIC", "host", style, 50, 60, 300, 200, parent, nullptr,
                               nullptr, nullptr);
    }

    CWin32Window() {
        options.className = "com.tessitor.Test.window";
        options.title = "window";
        options.style = 0x50000000;
        options.extendedStyle = 16;
        options.parent = hostWindow;
        options.bounds = {10, 20, 110, 70};
    }

    void create() {
        window = createNativeWindow(options, listener, reason);
        ASSERT_NE(window, nullptr) << reason;
    }
    HWND handle() const { return static_cast<HWND>(window->getHandle()); }
    LRESULT send(unsigned message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(handle(), message, wParam, lParam);
    }

    static inline HWND hostWindow = nullptr;

    CListener listener;
    SNativeWindowOptions options;
    std::string reason = "untouched";
    std::unique_ptr<INativeWindow> window;
};

TEST_F(CWin32Window, IsAVisibleChildOfItsParent) {
    create();
    EXPECT_EQ(GetParent(handle()), hostWindow);
    EXPECT_TRUE(IsWindowVisible(handle()));
    const auto [left, top, right, bottom] = window->getScreenArea();
    EXPECT_EQ(right - left, 100);
    EXPECT_EQ(bottom - top, 50);
    EXPECT_EQ(left, 60);
    EXPECT_EQ(top, 80);
    char text[100] = {};
    GetWindowTextA(handle(), text, sizeof text);
    EXPECT_STREQ(text, "window");
    GetClassNameA(handle(), text, sizeof text);
    EXPECT_STREQ(text, "com.tessitor.Test.window");
    EXPECT_EQ(reason, "");
}

TEST_F(CWin32Window, ItsClassSendsDoubleClicksAndHasTheArrow) {
    create();
    EXPECT_EQ(GetClassLongPtrA(handle(), GCL_STYLE), 8u);
    EXPECT_EQ(GetClassLongPtrA(handle(), GCLP_HBRBACKGROUND), 0u);
    EXPECT_NE(GetClassLongPtrA(handle(), GCLP_HCURSOR), 0u);
}

TEST_F(CWin32Window, AShadowIsAStyleOfItsClass) {
    options.hasShadow = true;
    create();
    EXPECT_EQ(GetClassLongPtrA(handle(), GCL_STYLE), 0x20008u);
}

// The program may be a library that is unloaded, and its procedure with it.
TEST_F(CWin32Window, TheLastOneOfAClassTakesItAway) {
    const auto hasClass = [this] {
        WNDCLASSEXA description = {};
        description.cbSize = sizeof description;
        return GetClassInfoExA(static_cast<HINSTANCE>(nativeModuleHandle()),
                               options.className.c_str(), &description) != 0;
    };
    create();
    auto other = createNativeWindow(options, listener, reason);
    EXPECT_NE(other, nullptr);
    window.reset();
    EXPECT_TRUE(hasClass());
    other.reset();
    EXPECT_FALSE(hasClass());
}

TEST_F(CWin32Window, ListensFromItsFirstMessageOn) {
    create();
    EXPECT_EQ(listener.messages.front().number, unsigned{WM_NCCREATE});
    EXPECT_NE(listener.find(NativeMove), nullptr);
    EXPECT_EQ(listener.find(NativeMove)->lParam, MAKELPARAM(10, 20));
    EXPECT_NE(listener.find(NativeSize), nullptr);
    EXPECT_EQ(listener.find(NativeSize)->lParam, MAKELPARAM(100, 50));
}

TEST_F(CWin32Window, IsFoundFromTheLowHalfOfAnAddress) {
    create();
    const LONG_PTR data = GetWindowLongPtrA(handle(), GWLP_USERDATA);
    EXPECT_NE(data, 0);
    EXPECT_EQ(data, LONG_PTR{static_cast<LONG>(data)});
    EXPECT_EQ(data, reinterpret_cast<LONG_PTR>(window.get()));
    EXPECT_EQ(data % 0x10000, 0) << "an object on the heap may lie anywhere";
}

TEST(LowMemory, LiesBelowTwoGigabytesAndCanBeReused) {
    void *first = allocateLowMemory(100000), *second = allocateLowMemory(8);
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(first) + 100000, 0x80000000u);
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(second), 0x80000000u);
    EXPECT_NE(first, second);
    static_cast<char *>(first)[99999] = 1;
    freeLowMemory(first);
    freeLowMemory(second);
    freeLowMemory(nullptr);
    EXPECT_THROW(allocateLowMemory(0x80000000u), std::bad_alloc);
}

TEST_F(CWin32Window, AnswersWithTheListenersResult) {
    create();
    listener.onMessage = [](const SMessage &message) {
        return message.number == WM_USER ? std::optional<std::intptr_t>(message.lParam + 1)
                                         : std::nullopt;
    };
    EXPECT_EQ(send(WM_USER, 5, 41), 42);
    EXPECT_EQ(listener.find(WM_USER)->wParam, 5u);
}

TEST_F(CWin32Window, LeavesMessagesToTheSystem) {
    create();
    char text[20] = {};
    EXPECT_EQ(send(WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text)), 6);
    EXPECT_STREQ(text, "window");
}

TEST_F(CWin32Window, IsRefusedWithTheSystemsMessage) {
    options.parent = &options;
    EXPECT_EQ(createNativeWindow(options, listener, reason), nullptr);
    char text[256] = {};
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   ERROR_INVALID_WINDOW_HANDLE, 0, text, sizeof text, nullptr);
    EXPECT_NE(reason, "");
    EXPECT_EQ(std::string(text).rfind(reason, 0), 0u) << reason;
    EXPECT_EQ(listener.ends, 0);
}

TEST_F(CWin32Window, ARefusedKindHasNoMessage) {
    options.className.assign(300, 'x');
    EXPECT_EQ(createNativeWindow(options, listener, reason), nullptr);
    EXPECT_EQ(reason, "");
}

TEST_F(CWin32Window, AListenerMayRefuseIt) {
    listener.onMessage = [](const SMessage &message) {
        return message.number == WM_CREATE ? std::optional<std::intptr_t>(-1) : std::nullopt;
    };
    EXPECT_EQ(createNativeWindow(options, listener, reason), nullptr);
    EXPECT_EQ(listener.ends, 0);
}

TEST_F(CWin32Window, CanBeShownMovedAndDisabled) {
    create();
    window->hide();
    EXPECT_FALSE(IsWindowVisible(handle()));
    window->show();
    EXPECT_TRUE(IsWindowVisible(handle()));
    window->enable(false);
    EXPECT_FALSE(IsWindowEnabled(handle()));
    window->enable(true);
    EXPECT_TRUE(IsWindowEnabled(handle()));
    listener.messages.clear();
    window->move({30, 40});
    EXPECT_EQ(listener.find(NativeMove)->lParam, MAKELPARAM(30, 40));
    EXPECT_EQ(listener.find(NativeSize), nullptr);
    window->moveAndResize({1, 2, 81, 62});
    EXPECT_EQ(listener.find(NativeMove)->lParam, MAKELPARAM(1, 2));
    EXPECT_EQ(listener.find(NativeSize)->lParam, MAKELPARAM(80, 60));
}

TEST_F(CWin32Window, MovingItLeavesItBelowTheOthers) {
    create();
    const auto above = createNativeWindow(options, listener, reason);
    ASSERT_NE(above, nullptr);
    const auto other = static_cast<HWND>(above->getHandle());
    SetWindowPos(other, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    window->move({30, 40});
    window->moveAndResize({1, 2, 81, 62});
    EXPECT_EQ(GetWindow(other, GW_HWNDNEXT), handle());
}

TEST_F(CWin32Window, APopupCanBeTranslucent) {
    options.style = 0x80000000;
    options.extendedStyle = 0x8080008;
    create();
    EXPECT_EQ(GetWindow(handle(), GW_OWNER), hostWindow);
    window->setAlpha(216);
    BYTE alpha = 0;
    DWORD flags = 0;
    EXPECT_TRUE(GetLayeredWindowAttributes(handle(), nullptr, &alpha, &flags));
    EXPECT_EQ(alpha, 216);
    EXPECT_EQ(flags, 2u);
}

TEST_F(CWin32Window, CanChangeItsTitle) {
    create();
    window->setTitle("another");
    char title[20] = {};
    GetWindowTextA(handle(), title, sizeof(title));
    EXPECT_STREQ(title, "another");
}

// Painting

TEST_F(CWin32Window, PaintsWhatIsInvalid) {
    create();
    std::vector<SNativeRect> painted;
    const auto picture = createNativeSurface(nullptr, 100, 50, {1, 2, 250});
    listener.onMessage = [&](const SMessage &message) -> std::optional<std::intptr_t> {
        if (message.number != NativePaint)
            return std::nullopt;
        window->paint([&](INativePaintTarget &target, const SNativeRect &dirty) {
            painted.push_back(dirty);
            target.copyFrom(*picture, dirty);
        });
        return 0;
    };
    window->update();
    painted.clear();
    window->invalidate({3, 4, 20, 30});
    window->invalidate({10, 10, 40, 20});
    window->update();
    ASSERT_EQ(painted.size(), 1u);
    EXPECT_EQ(painted[0].left, 3);
    EXPECT_EQ(painted[0].top, 4);
    EXPECT_EQ(painted[0].right, 40);
    EXPECT_EQ(painted[0].bottom, 30);
    HDC context = GetDC(handle());
    EXPECT_EQ(GetPixel(context, 5, 5), RGB(1, 2, 250));
    ReleaseDC(handle(), context);
    window->update();
    EXPECT_EQ(painted.size(), 1u);
}

TEST_F(CWin32Window, MayEndInsideItsPainting) {
    create();
    const auto picture = createNativeSurface(nullptr, 100, 50, {1, 2, 250});
    listener.onMessage = [&](const SMessage &message) -> std::optional<std::intptr_t> {
        if (message.number != NativePaint)
            return std::nullopt;
        window->paint([&](INativePaintTarget &target, const SNativeRect &dirty) {
            window.reset();
            target.copyFrom(*picture, dirty);
        });
        return 0;
    };
    window->invalidate({0, 0, 10, 10});
    SendMessageA(handle(), WM_PAINT, 0, 0);
    EXPECT_EQ(window, nullptr);
}

TEST_F(CWin32Window, APaintingThatThrowsIsOver) {
    create();
    window->invalidate({0, 0, 10, 10});
    EXPECT_THROW(window->paint([](INativePaintTarget &, const SNativeRect &) { throw 1; }), int);
    EXPECT_FALSE(GetUpdateRect(handle(), nullptr, FALSE));
}

// Timers

TEST_F(CWin32Window, TimersReachTheListenerUntilTheyAreStopped) {
    create();
    EXPECT_TRUE(window->startTimer(7, 10));
    listener.onTimer = [this] { window->stopTimer(7); };
    MSG message;
    while (listener.timers.empty() && GetMessageA(&message, handle(), 0, 0))
        DispatchMessageA(&message);
    EXPECT_THAT(listener.timers, ElementsAre(7));
    EXPECT_EQ(listener.find(NativeTimer), nullptr);
    EXPECT_FALSE(KillTimer(handle(), 7));
}

TEST_F(CWin32Window, RefusesTimersWithoutIdOrTime) {
    create();
    EXPECT_FALSE(window->startTimer(0, 10));
    EXPECT_FALSE(window->startTimer(-1, 10));
    EXPECT_FALSE(window->startTimer(1, 0));
    window->stopTimer(1);
}

// Its end

TEST_F(CWin32Window, ItsDestructorReportsDestroyOnly) {
    create();
    HWND old = handle();
    window.reset();
    EXPECT_FALSE(IsWindow(old));
    EXPECT_NE(listener.find(NativeDestroy), nullptr);
    EXPECT_EQ(listener.ends, 0);
}

TEST_F(CWin32Window, ReportsThatItsParentTookItAway) {
    HWND parent = createParent(hostWindow, WS_CHILD | WS_VISIBLE);
    options.parent = parent;
    create();
    DestroyWindow(parent);
    EXPECT_EQ(listener.ends, 1);
    EXPECT_EQ(window->getHandle(), nullptr);
    window->show();
    window->invalidate({0, 0, 1, 1});
    window->update();
    window->paint([](INativePaintTarget &, const SNativeRect &) { FAIL(); });
    EXPECT_FALSE(window->startTimer(1, 10));
    window->stopTimer(1);
    EXPECT_EQ(window->getScreenArea().right, 0);
    window.reset();
    EXPECT_EQ(listener.ends, 1);
}

TEST_F(CWin32Window, MayEndInsideAMessage) {
    create();
    HWND old = handle();
    listener.onMessage = [&](const SMessage &message) -> std::optional<std::intptr_t> {
        if (message.number == WM_USER)
            window.reset();
        return std::nullopt;
    };
    EXPECT_EQ(SendMessageA(old, WM_USER, 0, 0), 0);
    EXPECT_FALSE(IsWindow(old));
    EXPECT_EQ(listener.ends, 0);
}

TEST_F(CWin32Window, CloseEndsItByDefault) {
    create();
    send(NativeClose);
    EXPECT_EQ(listener.ends, 1);
}

TEST_F(CWin32Window, LeavesAWindowWithoutListenerIfAnotherThreadDeletesIt) {
    create();
    HWND old = handle();
    std::thread([this] { window.reset(); }).join();
    listener.messages.clear();
    ASSERT_TRUE(IsWindow(old));
    EXPECT_EQ(SendMessageA(old, WM_USER, 0, 0), 0);
    EXPECT_TRUE(listener.messages.empty());
    DestroyWindow(old);
}

// Mouse, keys and files

TEST_F(CWin32Window, CapturesTheMouse) {
    create();
    captureNativeMouse(handle());
    EXPECT_EQ(nativeMouseCapture(), handle());
    releaseNativeMouse();
    EXPECT_EQ(nativeMouseCapture(), nullptr);
}

TEST(NativeMouse, KnowsThePositionOnTheScreen) {
    SetCursorPos(123, 45);
    EXPECT_EQ(nativeMousePosition(), (SNativePoint{123, 45}));
}

TEST(NativeMouse, LoadsTheCursorsOfTheSystem) {
    for (const int number : {32512, 32649, 32514, 32645, 32644, 32513, 32642, 32646}) {
        void *cursor = loadNativeCursor(number);
        EXPECT_NE(cursor, nullptr) << number;
        setNativeCursor(cursor);
        EXPECT_EQ(GetCursor(), cursor);
        destroyNativeCursor(cursor);
    }
    EXPECT_EQ(loadNativeCursor(nativeModuleHandle(), 999), nullptr);
    EXPECT_EQ(loadNativeAnimatedCursor(nativeModuleHandle(), 999), nullptr);
    destroyNativeCursor(nullptr);
}

TEST(NativeKeyboard, KnowsWhatAKeyTypes) {
    BYTE keys[256] = {};
    SetKeyboardState(keys);
    const SNativeCharacter plain = nativeCharacterOf('A', 0x1E0001);
    EXPECT_EQ(plain.number, 1);
    EXPECT_EQ(plain.character, 'a');
    const auto up = static_cast<std::intptr_t>(0xC01E0001);
    EXPECT_EQ(nativeCharacterOf('A', up).character, 'a');
    EXPECT_EQ(nativeCharacterOf(VK_F1, 0x3B0001).number, 0);
    EXPECT_EQ(nativeCharacterOf(VK_F1, 0x3B0001).character, '\0');
}

TEST(NativeKeyboard, KnowsTheModifiers) {
    for (const int key : {VK_CONTROL, VK_SHIFT, VK_MENU}) {
        sendKey(static_cast<WORD>(key), true);
        const auto [isControlDown, isShiftDown, isAltDown] = nativeModifierKeys();
        EXPECT_EQ(isControlDown, key == VK_CONTROL);
        EXPECT_EQ(isShiftDown, key == VK_SHIFT);
        EXPECT_EQ(isAltDown, key == VK_MENU);
        sendKey(static_cast<WORD>(key), false);
    }
}

/// Turns the wheel, over a window of the calling thread.
void turnWheel(int movement) {
    sendMouse(MOUSEEVENTF_WHEEL, movement);
    handleMessages();
}

class CWin32WindowWheel : public CWin32Window {
protected:
    CWin32WindowWheel() {
        create();
        listener.onMessage = [this](const SMessage &message) {
            return message.number == NativeMouseWheel ? wheelResult : std::nullopt;
        };
        SetForegroundWindow(hostWindow);
        SetCursorPos(70, 90);
        SetCapture(hostWindow);  // Wine sends the wheel to the window under the mouse otherwise
        window->hookWheel();
    }
    ~CWin32WindowWheel() override { ReleaseCapture(); }

    std::optional<std::intptr_t> wheelResult = 0;
};

TEST_F(CWin32WindowWheel, GoesToTheWindowUnderTheMouse) {
    turnWheel(-120);
    ASSERT_NE(listener.find(NativeMouseWheel), nullptr);
    EXPECT_EQ(static_cast<std::int16_t>(HIWORD(listener.find(NativeMouseWheel)->wParam)), -120);
}

TEST_F(CWin32WindowWheel, StaysWithTheHostElsewhere) {
    SetCursorPos(55, 65);
    turnWheel(120);
    EXPECT_EQ(listener.find(NativeMouseWheel), nullptr);
}

TEST_F(CWin32WindowWheel, StaysWithTheHostOnceItIsUnhooked) {
    window->unhookWheel();
    turnWheel(120);
    EXPECT_EQ(listener.find(NativeMouseWheel), nullptr);
}

TEST_F(CWin32WindowWheel, StaysWithAnotherThreadAboveTheWindow) {
    ReleaseCapture();
    std::atomic<bool> isOver = false;
    std::thread other([&] {
        // Without SS_NOTIFY, the mouse would go through it.
        HWND above = CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE | SS_NOTIFY, 0, 0, 300,
                                     200, hostWindow, nullptr, nullptr, nullptr);
        SetWindowPos(above, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        turnWheel(120);
        DestroyWindow(above);
        isOver = true;
    });
    while (!isOver)
        handleMessages();  // for the host's window
    other.join();
    EXPECT_EQ(listener.find(NativeMouseWheel), nullptr);
}

TEST_F(CWin32Window, NoHookIsLeftBehind) {
    create();
    window->hookWheel();
    window->hookWheel();
    window->unhookWheel();
    EXPECT_EQ(removeHooks(), 0);
    window->hookWheel();
    EXPECT_EQ(removeHooks(), 1);
    window->hookWheel();
    DestroyWindow(handle());
    EXPECT_EQ(removeHooks(), 0);
    window->hookWheel();
    EXPECT_EQ(removeHooks(), 0);
    window = nullptr;
    create();
    window->hookWheel();
    window = nullptr;
    EXPECT_EQ(removeHooks(), 0);
}

TEST(NativeDrop, ReadsNamesAndPosition) {
    const auto wParam = reinterpret_cast<std::uintptr_t>(createSampleDrop());
    const SNativeDrop drop = readNativeDrop(wParam);
    EXPECT_THAT(drop.names, ElementsAre("C:\\one.wav", "C:\\two.wav"));
    EXPECT_EQ(drop.position, (SNativePoint{7, 8}));
    finishNativeDrop(wParam);
}

}  // namespace
