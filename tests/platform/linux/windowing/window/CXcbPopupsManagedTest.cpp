// Popups above a host's window that a window manager has put into a frame.
#include "platform/linux/windowing/CHostFixture.h"
#include "platform/linux/windowing/CWindowManager.h"
#include "platform/linux/windowing/window/CXcbPopups.h"

namespace {

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
        editor.window.reset();
        editor.options.parent = handleOf(framed);
        editor.create();
        menu.options.style = 0x80000000;
        menu.options.bounds = {450, 300, 550, 400};
        menu.options.parent = editor.window->getHandle();
        menu.create();
        client->focus(framed);
        menu.window->show();
        pumpAll(*client);
        pumpAll(*client);
    }
    ~CXcbPopupsManaged() override { client->destroyWindow(framed); }

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

}  // namespace
