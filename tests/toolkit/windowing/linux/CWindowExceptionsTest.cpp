// Listeners and controls that throw while the pump waits for the end of a message.
#include "CNativeWindowTest.h"
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
        expectNothingTaken();
        listener.onEvent = nullptr;
        moveMouse(inside);
        take();
        client->click(rightButton);
        EXPECT_THAT(takeWithoutMovements(),
                    ElementsAre("right down 516 at 5,7", "right up 517 at 5,7"));
        window->destroyWindow();
        expectNothingTaken();
    }
};

TEST_F(CWindowExceptions, OfAPressedButtonEndTheDrag) {
    client->press(leftButton);
    EXPECT_THAT(take(), Contains("left down 513 at 5,7"));
    expectNothingTaken();
    client->release(leftButton);
    EXPECT_THAT(take(), Contains("left up 514 at 5,7"));
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfAMovementEndTheDrag) {
    listener.onEvent = nullptr;
    client->press(leftButton);
    handleMessages();
    EXPECT_EQ(nativeMouseCapture(), handleOf(*window));
    listener.onEvent = [] { throw 1; };
    moveMouse({inside.x + 1, inside.y});
    EXPECT_THAT(take(), Contains("movement 512 at 6,7"));
    expectNothingTaken();
    client->release(leftButton);
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfTheWheelDoNoHarm) {
    client->click(4);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("scroll 1.000000 522 at 5,7"));
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfKeysAndTheFocusDoNoHarm) {
    client->focus(idOf(handleOf(*window)));
    handleMessages();
    client->typeKey('a');
    handleMessages();
    client->focus(host);
    EXPECT_THAT(take(), ElementsAre("gained focus", "down 'a' 56", "up 'a' 56", "lost focus"));
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
    control->onDraw = nullptr;
    expectNoHarm();
}

class CThrowingTimer : public Tessitor::GUI::Windowing::ITimedObject {
public:
    void timerFired() override {
        ++calls;
        throw std::runtime_error("on purpose");
    }
    std::int32_t getTimerId() const override { return 3; }

    int calls = 0;
};

TEST_F(CWindowExceptions, OfATimerLeaveItRunning) {
    CThrowingTimer timer;
    window->addTimedObject(&timer);
    window->startTimer(3, 10);
    EXPECT_TRUE(pumpUntil([&] { return timer.calls == 3; }));
    window->removeTimedObject(&timer);
    window->stopTimer(3);
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfItsEndLetItEnd) {
    window->destroyWindow();
    EXPECT_EQ(handleOf(*window), nullptr);
    EXPECT_THAT(take(), Contains("closed"));
    expectNothingTaken();
}

TEST_F(CWindowExceptions, OfItsEndLetItsParentEnd) {
    client->destroyWindow(host);
    EXPECT_THAT(take(), Contains("closed"));
    EXPECT_EQ(handleOf(*window), nullptr);
    expectNothingHeld();
}

TEST_F(CWindowExceptions, OfAPopupLeaveItsFocusWhereItIs) {
    const auto popup = openPopup();
    EXPECT_THAT(log, Contains("gained focus"));
    EXPECT_FALSE(client->canGrabPointer());
    moveMouse(outside);
    client->click(leftButton);
    EXPECT_THAT(take(), Contains("lost focus"));
    expectNothingTaken();
    popup->destroyWindow();
    expectNoHarm();
}

TEST_F(CWindowExceptions, OfADragInAPopupEndTheDrag) {
    const auto popup = openPopup();
    moveMouse({205, 217});
    client->press(leftButton);
    EXPECT_THAT(take(), Contains("left down 513 at 5,7"));
    EXPECT_EQ(nativeMouseCapture(), nullptr);
    client->release(leftButton);
    handleMessages();
    EXPECT_FALSE(client->canGrabPointer()) << "the popup is still there";
    popup->destroyWindow();
    expectNoHarm();
}

}  // namespace
