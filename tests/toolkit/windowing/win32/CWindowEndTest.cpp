// What is left when a real window goes away at a bad moment: no capture, no hook.
#include "CNativeWindowTest.h"
#include "platform/win32/windowing/RemoveHooks.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

class CWindowEnd : public CNativeWindowTest {
protected:
    void press() {
        open();
        moveMouse(inside);
        sendMouse(MOUSEEVENTF_LEFTDOWN);
        handleMessages();
        ASSERT_EQ(GetCapture(), handleOf(*window));
        log.clear();
    }
    static void expectNothingLeft() {
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(removeHooks(), 0);
    }
    ~CWindowEnd() override {
        sendMouse(MOUSEEVENTF_LEFTUP);
        handleMessages();
    }
};

TEST_F(CWindowEnd, ItsParentIsDestroyedFirst) {
    HWND parent = createHost(host, WS_CHILD | WS_VISIBLE);
    window = open(CRect(10, 20, 100, 50), parent);
    HWND old = handleOf(*window);
    DestroyWindow(parent);
    EXPECT_FALSE(IsWindow(old));
    EXPECT_EQ(handleOf(*window), nullptr);
    expectNothingLeft();
    openInNative(*window, host);
    listenTo(*window);
    moveMouse(inside);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
}

TEST_F(CWindowEnd, ItOpensAgain) {
    open();
    window->destroyWindow();
    expectNothingLeft();
    openInNative(*window, host);
    log.clear();
    moveMouse(inside);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
}

TEST_F(CWindowEnd, AListenerClosesItInADrag) {
    press();
    listener.onEvent = [this] { window->destroyWindow(); };
    moveMouse({inside.x + 10, inside.y});
    EXPECT_THAT(take(), Contains("movement 512 at 15,7"));
    expectNothingLeft();
}

TEST_F(CWindowEnd, AListenerDeletesItInADrag) {
    press();
    listener.onEvent = [this] { window.reset(); };
    moveMouse({inside.x + 10, inside.y});
    EXPECT_THAT(take(), Contains("movement 512 at 15,7"));
    expectNothingLeft();
}

TEST_F(CWindowEnd, ItsParentIsDestroyedInADrag) {
    HWND parent = createHost(host, WS_CHILD | WS_VISIBLE);
    SetWindowPos(parent, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    window = open(CRect(10, 20, 100, 50), parent);
    listenTo(*window);
    moveMouse(inside);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_THAT(take(), Contains("left down 513 at 5,7"));
    EXPECT_EQ(GetCapture(), handleOf(*window));
    DestroyWindow(parent);
    expectNothingLeft();
}

TEST_F(CWindowEnd, ItRefusesToCloseButItsParentIsDestroyed) {
    HWND parent = createHost(host, WS_CHILD | WS_VISIBLE);
    window = open(CRect(10, 20, 100, 50), parent);
    listenTo(*window);
    listener.mayClose = false;
    PostMessageA(handleOf(*window), WM_CLOSE, 0, 0);
    EXPECT_THAT(take(), Contains("closed"));
    EXPECT_NE(handleOf(*window), nullptr);
    DestroyWindow(parent);
    EXPECT_EQ(handleOf(*window), nullptr);
    expectNothingLeft();
}

class CPopup : public CNativeWindowTest {
protected:
    std::unique_ptr<CWindow> openPopup() {
        auto popup = std::make_unique<CWindow>(CRect(200, 210, 60, 40));
        listenTo(*popup);
        const CWindowAttributes attributes(Tessitor::GUI::Windowing::EWindowKind::Popup);
        popup->setParentWindow(window.get());
        popup->setWindowAttributes(&attributes, true);
        handleMessages();
        return popup;
    }
};

TEST_F(CPopup, HasTheFocusUntilTheHostIsClicked) {
    open();
    const auto popup = openPopup();
    EXPECT_THAT(log, Contains("gained focus"));
    EXPECT_EQ(GetFocus(), handleOf(*popup));
    log.clear();
    sendKey('A', true);
    sendKey('A', false);
    EXPECT_THAT(take(), ElementsAre("down 'a' 56", "up 'a' 56"));
    moveMouse({205, 217});
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
    moveMouse(outside);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    sendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_THAT(take(), Contains("lost focus"));
}

TEST_F(CPopup, ASecondOneLeavesNothingBehind) {
    open();
    auto first = openPopup(), second = openPopup();
    first->destroyWindow();
    second.reset();
    first.reset();
    window.reset();
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(removeHooks(), 0);
}

}  // namespace
