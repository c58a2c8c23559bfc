// What is left when a real window goes away at a bad moment: nobody's pointer, nobody's keyboard.
#include "CNativeWindowTest.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

class CWindowEnd : public CNativeWindowTest {
protected:
    void press() {
        open();
        moveMouse(inside);
        client->press(leftButton);
        handleMessages();
        ASSERT_EQ(nativeMouseCapture(), handleOf(*window));
        ASSERT_FALSE(client->canGrabPointer());
        log.clear();
    }
    /// A window of the host that lies in the host's window.
    xcb_window_t openInPanel() {
        const xcb_window_t panel = client->createWindow({0, 0, 300, 200}, host);
        window = std::make_unique<CWindow>(CRect(10, 20, 100, 50));
        openIn(*window, panel);
        listenTo(*window);
        return panel;
    }
};

TEST_F(CWindowEnd, ItsParentIsDestroyedFirst) {
    client->destroyWindow(openInPanel());
    EXPECT_THAT(take(), Contains("closed"));
    EXPECT_EQ(handleOf(*window), nullptr);
    expectNothingTaken();
    openIn(*window, host);
    moveMouse(inside);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
}

TEST_F(CWindowEnd, ItOpensAgain) {
    open();
    window->destroyWindow();
    expectNothingTaken();
    openIn(*window, host);
    log.clear();
    moveMouse(inside);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
}

TEST_F(CWindowEnd, ItIsClosedInADrag) {
    press();
    window->destroyWindow();
    expectNothingTaken();
}

TEST_F(CWindowEnd, AListenerClosesItInADrag) {
    press();
    listener.onEvent = [this] { window->destroyWindow(); };
    moveMouse({inside.x + 10, inside.y});
    EXPECT_THAT(take(), Contains("movement 512 at 15,7"));
    expectNothingTaken();
}

TEST_F(CWindowEnd, AListenerDeletesItInADrag) {
    press();
    listener.onEvent = [this] { window.reset(); };
    moveMouse({inside.x + 10, inside.y});
    EXPECT_THAT(take(), Contains("movement 512 at 15,7"));
    expectNothingTaken();
}

TEST_F(CWindowEnd, AListenerHidesItInADrag) {
    press();
    listener.onEvent = [this, isHidden = false]() mutable {
        if (!std::exchange(isHidden, true))
            window->closeWindow();
    };
    moveMouse({inside.x + 10, inside.y});
    EXPECT_THAT(take(), ElementsAre("movement 512 at 15,7", "closed"));
    EXPECT_TRUE(client->canGrabPointer());
    client->release(leftButton);
    window->openWindow();
    EXPECT_THAT(take(), Contains("left up 514 at 15,7"));
    expectNothingTaken();
}

TEST_F(CWindowEnd, ItsParentIsDestroyedInADrag) {
    const xcb_window_t panel = openInPanel();
    moveMouse(inside);
    client->press(leftButton);
    EXPECT_THAT(take(), Contains("left down 513 at 5,7"));
    EXPECT_EQ(nativeMouseCapture(), handleOf(*window));
    client->destroyWindow(panel);
    expectNothingTaken();
}

TEST_F(CWindowEnd, ItRefusesToCloseButItsParentIsDestroyed) {
    const xcb_window_t panel = openInPanel();
    listener.mayClose = false;
    client->destroyWindow(panel);
    EXPECT_THAT(take(), Contains("closed"));
    EXPECT_EQ(handleOf(*window), nullptr);
    expectNothingTaken();
}

class CPopup : public CNativeWindowTest {
protected:
    static bool isPointerHeld() {
        handleMessages();
        return !client->canGrabPointer();
    }
    /// Opens the window and a popup above it.
    std::unique_ptr<CWindow> openBoth() {
        open();
        auto popup = openPopup();
        EXPECT_TRUE(isPointerHeld());
        return popup;
    }
    static constexpr SNativePoint insidePopup = {205, 217};
};

TEST_F(CPopup, HoldsThePointerUntilAnotherWindowIsClicked) {
    const auto popup = openBoth();
    EXPECT_THAT(log, Contains("gained focus"));
    EXPECT_EQ(focus(), host);
    EXPECT_TRUE(client->canGrabKeyboard());
    moveMouse(insidePopup);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
    EXPECT_TRUE(isPointerHeld());
    moveMouse(outside);
    client->click(leftButton);
    EXPECT_THAT(take(), Contains("lost focus"));
    expectNothingTaken();
}

TEST_F(CPopup, IsClosed) {
    openBoth()->closeWindow();
    expectNothingTaken();
}

TEST_F(CPopup, IsDestroyed) {
    openBoth()->destroyWindow();
    expectNothingTaken();
}

TEST_F(CPopup, IsDeleted) {
    openBoth().reset();
    expectNothingTaken();
}

TEST_F(CPopup, LosesItsEditor) {
    const auto popup = openBoth();
    window->destroyWindow();
    EXPECT_THAT(log, Contains("lost focus"));
    expectNothingTaken();
}

TEST_F(CPopup, LosesItsEditorInADrag) {
    const auto popup = openBoth();
    moveMouse(insidePopup);
    client->press(leftButton);
    EXPECT_THAT(take(), Contains("left down 513 at 5,7"));
    window.reset();
    expectNothingTaken();
}

TEST_F(CPopup, LosesTheHost) {
    const auto popup = openBoth();
    client->destroyWindow(host);
    expectNothingHeld();
    EXPECT_THAT(log, Contains("lost focus"));
    EXPECT_EQ(handleOf(*window), nullptr);
}

TEST_F(CPopup, DeletesItselfInADrag) {
    auto popup = openBoth();
    moveMouse(insidePopup);
    client->press(leftButton);
    handleMessages();
    EXPECT_EQ(nativeMouseCapture(), handleOf(*popup));
    listener.onEvent = [&] { popup.reset(); };
    moveMouse({insidePopup.x + 1, insidePopup.y});
    handleMessages();
    listener.onEvent = nullptr;
    EXPECT_EQ(popup, nullptr);
    expectNothingTaken();
}

TEST_F(CPopup, ASecondOneKeepsThePointer) {
    auto first = openBoth(), second = openPopup(CRect(300, 210, 60, 40));
    first.reset();
    EXPECT_TRUE(isPointerHeld());
    second.reset();
    expectNothingTaken();
}

TEST_F(CPopup, TheFirstKeepsThePointerAfterTheSecond) {
    auto first = openBoth(), second = openPopup(CRect(300, 210, 60, 40));
    second->destroyWindow();
    EXPECT_TRUE(isPointerHeld());
    first->destroyWindow();
    expectNothingTaken();
}

}  // namespace
