// Listeners and controls that throw while the system waits for the end of a message.
#include "CNativeWindowTest.h"
#include "platform/win32/windowing/RemoveHooks.h"
#include "platform/win32/windowing/SampleDrop.h"
#include "toolkit/events/ITimedObject.h"

#include <stdexcept>

namespace {

using testing::Contains;
using testing::ElementsAre;

class CWindowExceptions : public CNativeWindowTest {
protected:
    CWindowExceptions() {
        open();
        moveMouse(inside);
        handleMessages();
        log.clear();
        listener.onEvent = [] { throw std::runtime_error("on purpose"); };
    }
    /// The window works as before, and leaves nothing behind.
    void expectNoHarm() {
        EXPECT_EQ(GetCapture(), nullptr);
        listener.onEvent = nullptr;
        log.clear();
        sendMouse(MOUSEEVENTF_RIGHTDOWN);
        sendMouse(MOUSEEVENTF_RIGHTUP);
        EXPECT_THAT(takeWithoutMovements(),
                    ElementsAre("right down 516 at 5,7", "right up 517 at 5,7"));
        window->destroyWindow();
        EXPECT_EQ(removeHooks(), 0);
    }
};

TEST_F(CWindowExceptions, OfAPressedButtonEndTheDrag) {
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_THAT(take(), Contains("left down 513 at 5,7"));
    EXPECT_EQ(GetCapture(), nullptr);
    sendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_THAT(take(), Contains("left up 514 at 5,7"));
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfAMovementEndTheDrag) {
    listener.onEvent = nullptr;
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    handleMessages();
    EXPECT_EQ(GetCapture(), handleOf(*window));
    listener.onEvent = [] { throw 1; };
    moveMouse({inside.x + 1, inside.y});
    EXPECT_THAT(take(), Contains("movement 512 at 6,7"));
    EXPECT_EQ(GetCapture(), nullptr);
    sendMouse(MOUSEEVENTF_LEFTUP);
    moveMouse(inside);
    handleMessages();
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfTheHookedWheelEndTheSearchForAReceiver) {
    SetCapture(host);
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("scroll 1.000000 522 at 5,7"));
    EXPECT_EQ(GetCapture(), host) << "it is not ours to release";
    ReleaseCapture();
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfKeysAndTheFocusDoNoHarm) {
    SetFocus(handleOf(*window));
    sendKey('A', true);
    sendKey('A', false);
    handleMessages();
    SetFocus(host);
    EXPECT_THAT(take(), ElementsAre("gained focus", "down 'a' 56", "up 'a' 56", "lost focus"));
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfADropFreeItsMemory) {
    HGLOBAL drop = createSampleDrop();
    SendMessageA(handleOf(*window), WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
    EXPECT_THAT(take(), Contains("drop 7,8 C:\\one.wav C:\\two.wav"));
    EXPECT_EQ(GlobalFlags(drop), UINT{GMEM_INVALID_HANDLE});
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfAPaintingAreNotRepeated) {
    int paintings = 0;
    auto *control = new CSpyControl(window->getControlRoot(), "c", CRect(0, 0, 100, 50), log);
    control->onDraw = [&](auto &) {
        ++paintings;
        throw std::runtime_error("on purpose");
    };
    window->getControlRoot()->addControl(control);
    window->redrawWindow();
    handleMessages();
    EXPECT_EQ(paintings, 1);
    EXPECT_FALSE(GetUpdateRect(handleOf(*window), nullptr, FALSE));
    control->onDraw = nullptr;
    expectNoHarm();
}

class CThrowingTimer : public Tessitor::GUI::Windowing::ITimedObject {
public:
    explicit CThrowingTimer(EventLog &log) : m_log(log) {}
    void timerFired() override {
        m_log.emplace_back("timer");
        throw std::runtime_error("on purpose");
    }
    std::int32_t getTimerId() const override { return 3; }

private:
    EventLog &m_log;
};

TEST_F(CWindowExceptions, OfATimerLeaveItRunning) {
    CThrowingTimer timer(log);
    window->addTimedObject(&timer);
    window->startTimer(3, 10);
    EXPECT_TRUE(waitFor("timer"));
    log.clear();
    EXPECT_TRUE(waitFor("timer"));
    window->removeTimedObject(&timer);
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfItsEndLetItEnd) {
    HWND old = handleOf(*window);
    window->destroyWindow();
    EXPECT_FALSE(IsWindow(old));
    EXPECT_THAT(take(), Contains("closed"));
    EXPECT_EQ(removeHooks(), 0);
}

TEST_F(CWindowExceptions, OfItsEndLetItsParentEnd) {
    HWND parent = createHost(host, WS_CHILD | WS_VISIBLE);
    window = open(CRect(10, 20, 100, 50), parent);
    listenTo(*window);
    DestroyWindow(parent);
    EXPECT_THAT(take(), Contains("closed"));
    EXPECT_EQ(handleOf(*window), nullptr);
    EXPECT_EQ(removeHooks(), 0);
}

}  // namespace
