#include "platform/linux/windowing/window/CXcbPopups.h"

#include "platform/NativeMouse.h"
#include "platform/linux/windowing/CHostFixture.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Message = SMouseMessage;

constexpr int leftButton = 1;

class CXcbPopups : public CHostFixture {
protected:
    static constexpr SNativeRect menuArea = {400, 100, 500, 200};
    static constexpr SNativeRect subMenuArea = {500, 100, 600, 200};

    CXcbPopups() {
        client->focus(host);
        createPopup(menu, menuArea);
        createPopup(subMenu, subMenuArea);
        pumpAll(*client);
    }
    ~CXcbPopups() override { EXPECT_TRUE(client->canGrabKeyboard()); }

    void createPopup(CWindowSpy &popup, const SNativeRect &area) {
        popup.options.style = 0x80000000;
        popup.options.extendedStyle = 0x8080008;
        popup.options.bounds = area;
        popup.options.parent = editor.window->getHandle();
        popup.create();
    }
    static void show(CWindowSpy &popup) {
        popup.messages.clear();
        popup.window->show();
    }
    /// As a menu does.
    void closeOnKillFocus(CWindowSpy &popup) {
        popup.onMessage = [&popup](const CWindowSpy::SMessage &message) {
            if (message.number == NativeKillFocus)
                popup.window->hide();
            return std::nullopt;
        };
    }
    void expectFocusIsLost() {
        pumpAll(*client);
        EXPECT_EQ(menu.all(NativeKillFocus).size(), 1u);
        EXPECT_TRUE(isPointerFree());
        EXPECT_FALSE(connection().popups().hasFocus());
    }
    std::uint32_t eventsOf(xcb_window_t window) {
        const auto reply = ownReply(xcb_get_window_attributes_reply(
            connection().get(), xcb_get_window_attributes(connection().get(), window), nullptr));
        return reply->your_event_mask;
    }

    CWindowSpy menu, subMenu;
};

// Popups come and go

TEST_F(CXcbPopups, HoldThePointerAndNotTheKeyboardWhileShown) {
    show(menu);
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus));
    EXPECT_TRUE(isPointerHeld());
    EXPECT_TRUE(client->canGrabKeyboard());
    menu.window->hide();
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus));
    EXPECT_TRUE(isPointerFree());
    EXPECT_TRUE(connection().popups().isEmpty());
}

TEST_F(CXcbPopups, GiveThePointerBackWhenThePopupIsDestroyed) {
    show(menu);
    menu.window.reset();
    EXPECT_TRUE(isPointerFree());
    EXPECT_TRUE(connection().popups().isEmpty());
}

TEST_F(CXcbPopups, GiveThePointerBackWhenTheEditorIsDestroyed) {
    show(menu);
    editor.window.reset();
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, GiveThePointerBackWhenTheHostDestroysItsWindow) {
    show(menu);
    pumpAll(*client);
    client->destroyWindow(host);
    pumpAll(*client);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, GoWithTheHostsWindow) {
    show(menu);
    pumpAll(*client);
    client->destroyWindow(host);
    pumpAll(*client);
    for (const CWindowSpy *popup : {&menu, &subMenu}) {
        EXPECT_EQ(popup->ends, 1);
        EXPECT_EQ(popup->all(NativeDestroy).size(), 1u);
        EXPECT_EQ(popup->window->getHandle(), nullptr);
    }
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
}

TEST_F(CXcbPopups, PassTheFocusOnToTheNextAndBack) {
    show(menu);
    std::vector<const CWindowSpy *> order;
    for (CWindowSpy *popup : {&menu, &subMenu}) {
        popup->onMessage = [popup, &order](const CWindowSpy::SMessage &message) {
            if (message.number == NativeSetFocus || message.number == NativeKillFocus)
                order.push_back(popup);
            return std::nullopt;
        };
    }
    show(subMenu);
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
    EXPECT_THAT(focusMessages(subMenu.messages), ElementsAre(NativeSetFocus));
    EXPECT_THAT(order, ElementsAre(&menu, &subMenu));
    subMenu.window->hide();
    EXPECT_THAT(focusMessages(menu.messages),
                ElementsAre(NativeSetFocus, NativeKillFocus, NativeSetFocus));
    EXPECT_TRUE(isPointerHeld());
    show(subMenu);
    subMenu.window.reset();
    EXPECT_EQ(menu.all(NativeSetFocus).size(), 3u);
    menu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, KeepThePointerWhenTheFirstIsHiddenFirst) {
    show(menu);
    show(subMenu);
    menu.window->hide();
    EXPECT_TRUE(isPointerHeld());
    EXPECT_THAT(focusMessages(subMenu.messages), ElementsAre(NativeSetFocus));
    subMenu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, SurviveAPopupThatClosesWhenAnotherOneIsShown) {
    show(menu);
    closeOnKillFocus(menu);
    show(subMenu);
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
    EXPECT_THAT(focusMessages(subMenu.messages), ElementsAre(NativeSetFocus));
    EXPECT_TRUE(isPointerHeld());
    subMenu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, SurviveANewPopupThatTheOldOneDestroys) {
    show(menu);
    menu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeKillFocus)
            subMenu.window.reset();
        return std::nullopt;
    };
    show(subMenu);
    EXPECT_THAT(focusMessages(menu.messages),
                ElementsAre(NativeSetFocus, NativeKillFocus, NativeSetFocus));
    menu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, MayBeDeletedByTheNextWhenTheyEnd) {
    show(menu);
    show(subMenu);
    menu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeSetFocus)
            subMenu.window.reset();
        return std::nullopt;
    };
    pumpAll(*client);
    client->destroyWindow(idOf(*subMenu.window));
    pumpAll(*client);
    EXPECT_EQ(subMenu.window, nullptr);
    EXPECT_EQ(subMenu.all(NativeDestroy).size(), 1u);
    EXPECT_EQ(subMenu.ends, 0);
    EXPECT_TRUE(isPointerHeld());
    menu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, MayBeDeletedByAPopupThatLosesTheFocusWithTheirOpener) {
    show(menu);
    menu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeKillFocus)
            editor.window.reset();
        return std::nullopt;
    };
    pumpAll(*client);
    client->destroyWindow(host);
    pumpAll(*client);
    EXPECT_EQ(editor.window, nullptr);
    EXPECT_EQ(editor.ends, 0);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, SendNothingWhileNothingHappens) {
    const auto requests = [this] { return xcb_no_operation(connection().get()).sequence; };
    show(menu);
    pumpAll(*client);
    pumpAll(*client);
    const unsigned before = requests();
    connection().pump();
    EXPECT_EQ(requests(), before + 1);
}

TEST_F(CXcbPopups, GiveNoFocusToANewPopupThatTheOldOneHides) {
    show(menu);
    menu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeKillFocus)
            subMenu.window->hide();
        return std::nullopt;
    };
    show(subMenu);
    EXPECT_THAT(focusMessages(subMenu.messages), IsEmpty());
}

// Presses

TEST_F(CXcbPopups, LoseTheFocusByAPressOutside) {
    show(menu);
    client->movePointer(300, 300);
    client->click(leftButton);
    expectFocusIsLost();
    EXPECT_THAT(mouseMessages(menu.messages), IsEmpty());
}

TEST_F(CXcbPopups, LoseTheFocusByAPressInAnotherEditor) {
    const xcb_window_t otherHost = client->createWindow({50, 300, 350, 460});
    CWindowSpy other;
    other.options.parent = handleOf(otherHost);
    other.create();
    show(menu);
    pumpAll(*client);
    tellsOf(other, [] {
        client->movePointer(70, 330);
        client->click(leftButton);
    });
    EXPECT_THAT(other.all(NativeLeftDown), IsEmpty());
    expectFocusIsLost();
    tellsOf(other, [] { client->click(leftButton); });
    EXPECT_THAT(other.all(NativeLeftDown), ElementsAre(10 | 10 << 16));
    client->destroyWindow(otherHost);
}

TEST_F(CXcbPopups, LoseTheFocusByAPressOfAFurtherButton) {
    show(menu);
    client->movePointer(300, 300);
    client->click(8);  // above those of the wheel
    expectFocusIsLost();
}

TEST_F(CXcbPopups, CloseByAPressOutside) {
    show(menu);
    show(subMenu);
    subMenu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeKillFocus) {
            subMenu.window->hide();
            menu.window->hide();
        }
        return std::nullopt;
    };
    client->movePointer(300, 300);
    client->press(leftButton);
    pumpAll(*client);
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
    EXPECT_THAT(focusMessages(subMenu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
    EXPECT_TRUE(connection().popups().isEmpty());
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, LeaveAPressInTheEditorToTheEditor) {
    closeOnKillFocus(menu);
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown)
            captureNativeMouse(editor.window->getHandle());
        if (message.number == NativeLeftUp)
            releaseNativeMouse();
        return std::nullopt;
    };
    show(menu);
    client->movePointer(90, 120);
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(editor, [&] { client->press(leftButton); })),
                Contains(Message{NativeLeftDown, 30, 40}));
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus, NativeKillFocus));
    // The server made no grab for this press, but the drag goes on outside.
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(editor,
                                      [&] {
                                          client->movePointer(600, 470);
                                          client->release(leftButton);
                                      })),
                ElementsAre(Message{NativeMouseMove, 540, 390}, Message{NativeLeftUp, 540, 390}));
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, GetPressesOfAllTheirWindows) {
    show(menu);
    show(subMenu);
    client->movePointer(550, 150);
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(subMenu, [&] { client->click(leftButton); })),
                ElementsAre(Message{NativeLeftDown, 50, 50}, Message{NativeLeftUp, 50, 50}));
    client->movePointer(450, 150);
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(menu, [&] { client->click(leftButton); })),
                ElementsAre(Message{NativeLeftDown, 50, 50}, Message{NativeLeftUp, 50, 50}));
    EXPECT_EQ(subMenu.all(NativeKillFocus).size(), 0u);
    EXPECT_TRUE(isPointerHeld());
}

TEST_F(CXcbPopups, HoldNothingIfNobodyClosesThem) {
    show(menu);
    client->movePointer(300, 300);
    client->press(leftButton);
    expectFocusIsLost();
    client->release(leftButton);
    pumpAll(*client);
    EXPECT_TRUE(isPointerFree());
    show(subMenu);
    EXPECT_TRUE(isPointerHeld());
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 1u);
}

TEST_F(CXcbPopups, HearNothingOfAMouseOutside) {
    show(menu);
    const auto act = [&] {
        client->movePointer(300, 300);
        client->click(4);
        client->movePointer(310, 310);
        client->click(5);
    };
    EXPECT_THAT(mouseMessages(tellsOf(menu, act)), IsEmpty());
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 0u);
    EXPECT_TRUE(isPointerHeld());
}

TEST_F(CXcbPopups, LetTheEditorFollowTheMouse) {
    show(menu);
    EXPECT_THAT(mouseMessages(tellsOf(editor, [&] { client->movePointer(90, 120); })),
                ElementsAre(Message{NativeMouseMove, 30, 40}));
}

// Captures and grabs

TEST_F(CXcbPopups, KeepThePointerWhenAHandlerReleasesTheCapture) {
    menu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown)
            captureNativeMouse(menu.window->getHandle());
        if (message.number == NativeLeftUp)
            releaseNativeMouse();
        return std::nullopt;
    };
    show(menu);
    client->movePointer(450, 150);
    client->press(leftButton);
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(menu,
                                      [&] {
                                          client->movePointer(300, 90);
                                          client->release(leftButton);
                                      })),
                ElementsAre(Message{NativeMouseMove, -100, -10}, Message{NativeLeftUp, -100, -10}));
    EXPECT_TRUE(isPointerHeld());
    EXPECT_THAT(mouseMessages(tellsOf(editor, [&] { client->movePointer(90, 120); })),
                ElementsAre(Message{NativeMouseMove, 30, 40}));
    menu.window->hide();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, HearThatTheMouseHasLeftWhenADragEndsOutside) {
    menu.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeMouseMove)
            menu.window->trackMouseLeave();
        if (message.number == NativeLeftDown)
            captureNativeMouse(menu.window->getHandle());
        if (message.number == NativeLeftUp)
            releaseNativeMouse();
        return std::nullopt;
    };
    show(menu);
    client->movePointer(450, 150);
    client->press(leftButton);
    pumpAll(*client);
    client->movePointer(300, 90);
    EXPECT_THAT(mouseMessages(tellsOf(menu, [&] { client->release(leftButton); })),
                ElementsAre(Message{NativeMouseMove, -100, -10}, Message{NativeLeftUp, -100, -10},
                            Message{NativeMouseLeave, 0, 0}));
}

TEST_F(CXcbPopups, GiveThePointerBackWhenOneIsDestroyedInItsDrag) {
    show(menu);
    client->movePointer(450, 150);
    client->press(leftButton);
    pumpAll(*client);
    captureNativeMouse(menu.window->getHandle());
    menu.window.reset();
    EXPECT_TRUE(isPointerFree());
    EXPECT_EQ(nativeMouseCapture(), nullptr);
}

TEST_F(CXcbPopups, LeaveADragToTheWindowThatHasOpenedThem) {
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown) {
            captureNativeMouse(editor.window->getHandle());
            show(menu);
        }
        if (message.number == NativeLeftUp)
            releaseNativeMouse();
        return std::nullopt;
    };
    client->movePointer(90, 120);
    client->press(leftButton);
    pumpAll(*client);
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus));
    EXPECT_THAT(mouseMessages(tellsOf(editor, [&] { client->movePointer(450, 150); })),
                ElementsAre(Message{NativeMouseMove, 390, 70}));
    client->movePointer(300, 300);
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(editor, [&] { menu.window->hide(); })), IsEmpty());
    EXPECT_TRUE(isPointerHeld());
    EXPECT_THAT(mouseMessages(tellsOf(editor,
                                      [&] {
                                          client->movePointer(600, 470);
                                          client->release(leftButton);
                                      })),
                ElementsAre(Message{NativeMouseMove, 540, 390}, Message{NativeLeftUp, 540, 390}));
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, LeaveADragToACaptureThatComesAfterThem) {
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown) {
            show(menu);
            menu.window->hide();
            captureNativeMouse(editor.window->getHandle());
        }
        return std::nullopt;
    };
    client->movePointer(90, 120);
    client->press(leftButton);
    pumpAll(*client);
    pumpAll(*client);
    EXPECT_THAT(mouseMessages(tellsOf(editor, [&] { client->movePointer(600, 470); })),
                ElementsAre(Message{NativeMouseMove, 540, 390}));
    releaseNativeMouse();
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPopups, AskAgainForAPointerThatSomebodyElseHolds) {
    xcb_grab_pointer(client->get(), 0, client->getScreen().root, 0, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    client->synchronise();
    show(menu);
    pumpAll(*client);
    EXPECT_THAT(focusMessages(menu.messages), ElementsAre(NativeSetFocus));
    xcb_ungrab_pointer(client->get(), XCB_CURRENT_TIME);
    client->synchronise();
    EXPECT_TRUE(pumpUntil([&] { return !client->canGrabPointer(); }));
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 0u);
}

TEST_F(CXcbPopups, LoseTheFocusIfTheirGrabIsBroken) {
    for (const SNativePoint &place : {SNativePoint{90, 120}, {300, 200}, {450, 150}}) {
        client->movePointer(place.x, place.y);
        show(menu);
        pumpAll(*client);
        xcb_ungrab_pointer(connection().get(), XCB_CURRENT_TIME);
        expectFocusIsLost();
        menu.window->hide();
    }
}

TEST_F(CXcbPopups, KeepTheFocusWhenAGrabFromBeforeTheirsHasEnded) {
    client->movePointer(90, 120);
    pumpAll(*client);
    EXPECT_TRUE(client->canGrabPointer());
    show(menu);
    pumpAll(*client);
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 0u);
    EXPECT_TRUE(isPointerHeld());
}

// The host

TEST_F(CXcbPopups, LoseTheFocusWhenTheHostLosesTheKeyboard) {
    show(menu);
    pumpAll(*client);
    const xcb_window_t other = client->createWindow({0, 0, 10, 10});
    client->focus(other);
    expectFocusIsLost();
}

TEST_F(CXcbPopups, KeepTheFocusWhenTheKeyboardStaysInTheHost) {
    show(menu);
    pumpAll(*client);
    const xcb_window_t inner = client->createWindow({0, 0, 10, 10}, host);
    client->focus(inner);
    client->focus(host);
    EXPECT_TRUE(client->canGrabKeyboard());
    pumpAll(*client);
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 0u);
}

TEST_F(CXcbPopups, LoseTheFocusWhenTheHostMoves) {
    show(menu);
    pumpAll(*client);
    pumpAll(*client);
    const std::uint32_t x = 51;
    xcb_configure_window(client->get(), host, XCB_CONFIG_WINDOW_X, &x);
    pumpAll(*client);
    expectFocusIsLost();
}

TEST_F(CXcbPopups, LoseTheFocusWhenTheHostMovesAtOnce) {
    show(menu);
    ownReply(xcb_get_input_focus_reply(connection().get(), xcb_get_input_focus(connection().get()),
                                       nullptr));
    const std::uint32_t x = 51;
    xcb_configure_window(client->get(), host, XCB_CONFIG_WINDOW_X, &x);
    pumpAll(*client);
    expectFocusIsLost();
}

TEST_F(CXcbPopups, KeepTheFocusWhenTheHostIsOnlyRaised) {
    const xcb_window_t above = client->createWindow({0, 0, 10, 10});
    show(menu);
    pumpAll(*client);
    pumpAll(*client);
    const std::uint32_t mode = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(client->get(), host, XCB_CONFIG_WINDOW_STACK_MODE, &mode);
    pumpAll(*client);
    pumpAll(*client);
    EXPECT_EQ(menu.all(NativeKillFocus).size(), 0u);
    client->destroyWindow(above);
}

TEST_F(CXcbPopups, LoseTheFocusWhenTheHostIsUnmapped) {
    client->focus(client->getScreen().root);
    show(menu);
    pumpAll(*client);
    xcb_unmap_window(client->get(), host);
    expectFocusIsLost();
}

TEST_F(CXcbPopups, FloatAboveTheHostAlsoWhenTheyFloatAboveEachOther) {
    CWindowSpy third;
    third.options.style = 0x80000000;
    third.options.parent = menu.window->getHandle();
    third.create();
    EXPECT_EQ(connection().windowOf(idOf(*third.window))->getTopLevel(), host);
}

TEST_F(CXcbPopups, WatchTheHostOnlyWhileShown) {
    EXPECT_EQ(eventsOf(host), 0u);
    show(menu);
    EXPECT_EQ(eventsOf(host), XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    menu.window->hide();
    EXPECT_EQ(eventsOf(host), 0u);
    EXPECT_EQ(eventsOf(client->getScreen().root), 0u);
}

}  // namespace
