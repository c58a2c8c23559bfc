// Popups above a host's window that a window manager has put into a frame.
#include "platform/linux/windowing/CHostFixture.h"
#include "platform/linux/windowing/CWindowManager.h"
#include "platform/linux/windowing/window/CXcbPopups.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class CXcbPopupsManaged : public CHostFixture {
protected:
    static void SetUpTestSuite() {
        CHostFixture::SetUpTestSuite();
        manager = std::make_unique<CWindowManager>(*client);
    }
    static void TearDownTestSuite() {
        manager.reset();
        CHostFixture::TearDownTestSuite();
    }

    CXcbPopupsManaged() {
        EXPECT_TRUE(CWindowManager::waitFor(*client, framed));
        xcb_unmap_window(client->get(), host);  // it would cover this one
        editor.window.reset();
        editor.options.parent = handleOf(framed);
        editor.create();
        menu.options.style = 0x80000000;
        menu.options.bounds = {450, 300, 550, 400};
        menu.options.parent = editor.window->getHandle();
        menu.create();
        manager->synchronise(*client);
        client->focus(framed);
        menu.window->show();
        settle();
    }
    ~CXcbPopupsManaged() override { client->destroyWindow(framed); }

    static void settle() {
        manager->synchronise(*client);
        pumpAll(*client);
        manager->synchronise(*client);
        pumpAll(*client);
    }
    /// From now on a click in the editor opens the menu.
    void openByClick() {
        menu.window->hide();
        settle();
        menu.messages.clear();
        editor.onMessage = [this](const CWindowSpy::SMessage &message) {
            if (message.number == NativeLeftUp)
                menu.window->show();
            return std::nullopt;
        };
        const SNativeRect area = editor.window->getScreenArea();
        client->movePointer(area.left + 5, area.top + 5);
        settle();
    }
    void expectOpenMenu() {
        EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus));
        EXPECT_TRUE(isPointerHeld());
    }
    bool losesFocus() {
        return pumpUntil([this] { return menu.all(NativeKillFocus).size() == 1; }) &&
               isPointerFree();
    }

    static inline std::unique_ptr<CWindowManager> manager;
    xcb_window_t framed = client->createWindow({100, 100, 300, 250}, 0, true);
    CWindowSpy menu;
};

TEST_F(CXcbPopupsManaged, HoldThePointerWhileNothingHappens) {
    EXPECT_EQ(menu.all(NativeSetFocus).size(), 1u);
    EXPECT_TRUE(isPointerHeld());
    EXPECT_TRUE(client->canGrabKeyboard());
    pumpAll(*client);
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 0u);
    menu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopupsManaged, LoseTheFocusWhenTheFrameMoves) {
    const std::uint32_t x = 120;
    xcb_configure_window(client->get(), framed, XCB_CONFIG_WINDOW_X, &x);
    client->synchronise();
    EXPECT_TRUE(losesFocus());
}

TEST_F(CXcbPopupsManaged, LoseTheFocusWhenTheHostLosesTheKeyboard) {
    const xcb_window_t other = client->createWindow({10, 300, 60, 350}, 0, true);
    CWindowManager::waitFor(*client, other);
    client->focus(other);
    EXPECT_TRUE(losesFocus());
    client->destroyWindow(other);
}

TEST_F(CXcbPopupsManaged, LoseTheFocusWhenTheHostIsUnmapped) {
    xcb_unmap_window(client->get(), framed);
    client->synchronise();
    EXPECT_TRUE(losesFocus());
}

TEST_F(CXcbPopupsManaged, LoseTheFocusByAPressOutside) {
    client->movePointer(20, 20);
    client->click(1);
    EXPECT_TRUE(losesFocus());
}

TEST_F(CXcbPopupsManaged, StayWhenTheManagerPassesTheClickOnLate) {
    openByClick();
    manager->pause();
    client->click(1);
    pumpAll(*client);
    EXPECT_EQ(menu.messages.size(), 0u);
    manager->resume();
    settle();
    expectOpenMenu();
}

TEST_F(CXcbPopupsManaged, StayWhenTheManagerHandlesThePressOfTheirClickLate) {
    openByClick();
    client->press(1);
    settle();
    manager->pause();
    client->release(1);
    pumpAll(*client);
    expectOpenMenu();
    manager->resume();
    settle();
    expectOpenMenu();
}

TEST_F(CXcbPopupsManaged, StayWhenTheirClickActivatesTheHost) {
    const xcb_window_t other = client->createWindow({10, 300, 60, 350}, 0, true);
    openByClick();
    client->focus(other);
    settle();
    client->click(1);
    settle();
    expectOpenMenu();
    const auto active = numbersOf(*client, client->getScreen().root, "_NET_ACTIVE_WINDOW");
    EXPECT_THAT(active, ElementsAre(framed));
    client->destroyWindow(other);
}

TEST_F(CXcbPopupsManaged, GetThePointerWhenSomebodyElseGivesItBack) {
    openByClick();
    client->press(1);
    settle();
    client->release(1);
    xcb_grab_pointer(client->get(), 0, client->getScreen().root, 0, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    settle();
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus));
    xcb_ungrab_pointer(client->get(), XCB_CURRENT_TIME);
    client->synchronise();
    settle();
    expectOpenMenu();
}

}  // namespace
