#include "platform/linux/windowing/window/CXcbWindow.h"

#include "platform/linux/windowing/CDisplayFixture.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/WindowProperty.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/windowing/CWindowSpy.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t black = 0;

/// The windows of a host's window of 300 by 200, which lies at 50, 60.
class CXcbWindows : public CDisplayFixture {
protected:
    CXcbWindows() { spy.options.parent = handleOf(parent); }
    ~CXcbWindows() override { client->destroyWindow(parent); }

    void createPainted() {
        spy.create();
        pumpAll(*client);
        spy.messages.clear();
        spy.painted.clear();
    }
    static std::uint32_t screenPixel(int x, int y) {
        return client->pixelOf(client->getScreen().root, x, y);
    }
    static std::vector<std::uint32_t> property(const INativeWindow &window, const char *name) {
        pumpAll(*client);
        return numbersOf(*client, idOf(window), name);
    }
    static bool isMapped(const INativeWindow &window) {
        pumpAll(*client);
        const auto reply = ownReply(xcb_get_window_attributes_reply(
            client->get(), xcb_get_window_attributes(client->get(), idOf(window)), nullptr));
        return reply && reply->map_state != XCB_MAP_STATE_UNMAPPED;
    }

    xcb_window_t parent = client->createWindow({50, 60, 350, 260});
    CWindowSpy spy;
};

// In its parent

TEST_F(CXcbWindows, IsSeenInItsParent) {
    spy.create();
    pumpAll(*client);
    EXPECT_EQ(screenPixel(60, 80), CWindowSpy::colour);
    EXPECT_EQ(screenPixel(159, 129), CWindowSpy::colour);
    EXPECT_EQ(screenPixel(59, 80), black);
    EXPECT_EQ(screenPixel(160, 129), black);
    EXPECT_EQ(screenPixel(159, 130), black);
}

TEST_F(CXcbWindows, WhatIsPaintedAtOnceIsNotPaintedAgainWhenItIsExposed) {
    spy.create();
    spy.window->update();
    EXPECT_EQ(spy.painted.size(), 1u);
    pumpAll(*client);
    EXPECT_EQ(spy.painted.size(), 1u);
    EXPECT_EQ(screenPixel(159, 129), CWindowSpy::colour);
}

TEST_F(CXcbWindows, TellsAnEmbedderWhetherItIsShown) {
    spy.create();
    EXPECT_THAT(property(*spy.window, "_XEMBED_INFO"), ElementsAre(0, 1));
    spy.window->hide();
    EXPECT_THAT(property(*spy.window, "_XEMBED_INFO"), ElementsAre(0, 0));
    EXPECT_FALSE(isMapped(*spy.window));
    spy.window->show();
    EXPECT_THAT(property(*spy.window, "_XEMBED_INFO"), ElementsAre(0, 1));
}

TEST_F(CXcbWindows, AParentMayGrowLater) {
    const xcb_window_t tiny = client->createWindow({50, 60, 51, 61});
    spy.options.parent = handleOf(tiny);
    spy.options.bounds = {0, 0, 100, 50};
    spy.create();
    pumpAll(*client);
    EXPECT_EQ(screenPixel(50, 60), CWindowSpy::colour);
    const std::uint32_t size[] = {200, 100};
    xcb_configure_window(client->get(), tiny, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         size);
    pumpAll(*client);
    EXPECT_EQ(screenPixel(149, 109), CWindowSpy::colour);
    client->destroyWindow(tiny);
}

TEST_F(CXcbWindows, AParentMayBeMappedLater) {
    xcb_unmap_window(client->get(), parent);
    spy.create();
    pumpAll(*client);
    xcb_map_window(client->get(), parent);
    pumpAll(*client);
    EXPECT_EQ(screenPixel(60, 80), CWindowSpy::colour);
}

// Ardour 7.3 only hides the host window when the user closes it, and shows it again later.
TEST_F(CXcbWindows, AParentMayBeHiddenAndShownAgain) {
    createPainted();
    xcb_unmap_window(client->get(), parent);
    pumpAll(*client);
    spy.window->invalidate({0, 0, 100, 50});
    pumpAll(*client);
    xcb_map_window(client->get(), parent);
    pumpAll(*client);
    EXPECT_EQ(screenPixel(60, 80), CWindowSpy::colour);
    EXPECT_EQ(screenPixel(159, 129), CWindowSpy::colour);
}

TEST_F(CXcbWindows, AParentMayMoveIt) {
    createPainted();
    const std::uint32_t bounds[] = {5, 6, 40, 30};
    xcb_configure_window(client->get(), idOf(*spy.window),
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         bounds);
    pumpAll(*client);
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(5 | 6 << 16));
    EXPECT_THAT(spy.all(NativeSize), ElementsAre(40 | 30 << 16));
    EXPECT_EQ(screenPixel(50 + 5 + 39, 60 + 6 + 29), CWindowSpy::colour);
}

TEST_F(CXcbWindows, MayBeGivenToAnotherParent) {
    createPainted();
    const xcb_window_t other = client->createWindow({100, 100, 200, 200});
    xcb_reparent_window(client->get(), idOf(*spy.window), other, 7, 8);
    pumpAll(*client);
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(7 | 8 << 16));
    spy.window.reset();
    client->destroyWindow(other);
}

TEST_F(CXcbWindows, EarlierMovesDoNotComeBack) {
    createPainted();
    spy.window->move({1, 2});
    spy.window->move({3, 4});
    spy.window->moveAndResize({3, 4, 23, 24});
    spy.messages.clear();
    pumpAll(*client);
    EXPECT_THAT(spy.all(NativeMove), IsEmpty());
    EXPECT_THAT(spy.all(NativeSize), IsEmpty());
    EXPECT_EQ(screenPixel(50 + 22, 60 + 23), CWindowSpy::colour);
}

TEST_F(CXcbWindows, IsNeverEmpty) {
    createPainted();
    spy.window->moveAndResize({10, 10, 10, 5});
    EXPECT_THAT(spy.all(NativeSize), ElementsAre(1 | 1 << 16));
    pumpAll(*client);
    EXPECT_EQ(screenPixel(60, 70), CWindowSpy::colour);
    EXPECT_EQ(spy.all(NativeSize).size(), 1u);
}

TEST_F(CXcbWindows, KnowsWhereItIsWhileEventsAreHandled) {
    createPainted();
    spy.window->move({30, 40});
    SNativeRect area;
    spy.window->startTimer(1, 1);
    spy.onTimer = [&](int) { area = spy.window->getScreenArea(); };
    EXPECT_TRUE(pumpUntil([&] { return !spy.timers.empty(); }));
    EXPECT_EQ(area.left, 80);
    EXPECT_EQ(area.top, 100);
    EXPECT_EQ(area.right, 180);
    EXPECT_EQ(area.bottom, 150);
}

// Painting

TEST_F(CXcbWindows, PaintsWhatWasCovered) {
    createPainted();
    const xcb_window_t cover = client->createWindow({60 + 5, 80 + 6, 60 + 25, 80 + 16});
    pumpAll(*client);
    EXPECT_THAT(spy.painted, IsEmpty());
    client->destroyWindow(cover);
    pumpAll(*client);
    ASSERT_EQ(spy.painted.size(), 1u);
    EXPECT_EQ(spy.painted[0].left, 5);
    EXPECT_EQ(spy.painted[0].top, 6);
    EXPECT_EQ(spy.painted[0].right, 25);
    EXPECT_EQ(spy.painted[0].bottom, 16);
    EXPECT_EQ(screenPixel(60 + 5, 80 + 6), CWindowSpy::colour);
}

TEST_F(CXcbWindows, PaintsWhatWasCoveredAlsoAfterAnotherPart) {
    createPainted();
    const xcb_window_t cover = client->createWindow({60 + 5, 80 + 6, 60 + 25, 80 + 16});
    client->destroyWindow(cover);
    spy.window->invalidate({50, 0, 60, 10});
    spy.window->update();
    pumpAll(*client);
    EXPECT_EQ(screenPixel(60 + 5, 80 + 6), CWindowSpy::colour);
}

TEST_F(CXcbWindows, PaintsExposedAndInvalidPartsTogether) {
    createPainted();
    const xcb_window_t cover = client->createWindow({60 + 5, 80 + 6, 60 + 25, 80 + 16});
    client->destroyWindow(cover);
    spy.window->invalidate({20, 10, 40, 40});
    pumpAll(*client);
    ASSERT_EQ(spy.painted.size(), 1u);
    EXPECT_EQ(spy.painted[0].left, 5);
    EXPECT_EQ(spy.painted[0].right, 40);
    EXPECT_EQ(spy.painted[0].bottom, 40);
}

TEST_F(CXcbWindows, PaintsOncePerPumpEvenIfItInvalidatesItself) {
    createPainted();
    spy.onPaint = [this](INativeSurface &) { spy.window->invalidate({0, 0, 5, 5}); };
    spy.window->invalidate({0, 0, 5, 5});
    for (int i = 1; i <= 3; ++i) {
        spy.window->pump();
        EXPECT_EQ(spy.painted.size(), static_cast<std::size_t>(i));
    }
}

TEST_F(CXcbWindows, TouchesOnlyWhatIsInvalid) {
    createPainted();
    spy.onPaint = [](INativeSurface &picture) {
        picture.setBrush({255, 0, 0});
        picture.fillRectangle({0, 0, 100, 50});
    };
    spy.window->invalidate({10, 10, 20, 20});
    const auto connection = CXcbConnection::find(idOf(*spy.window));
    const std::uint64_t before = xcb_total_written(connection->get());
    pumpAll(*client);
    EXPECT_LT(xcb_total_written(connection->get()) - before, 10 * 10 * 4 + 100u);
    EXPECT_EQ(screenPixel(60 + 10, 80 + 10), 0xFF0000u);
    EXPECT_EQ(screenPixel(60 + 19, 80 + 19), 0xFF0000u);
    EXPECT_EQ(screenPixel(60 + 9, 80 + 10), CWindowSpy::colour);
    EXPECT_EQ(screenPixel(60 + 20, 80 + 19), CWindowSpy::colour);
}

TEST_F(CXcbWindows, SendsPicturesInStripsThatAreLargerThanARequest) {
    const xcb_window_t screen = client->createWindow({0, 0, 640, 480});
    spy.options.parent = handleOf(screen);
    spy.options.bounds = {640 - 3000, 480 - 2000, 640, 480};
    spy.onPaint = [](INativeSurface &picture) {
        for (std::int32_t y = 0; y < 2000; ++y)
            picture.setPixel({2500, y}, {255, static_cast<std::uint8_t>(y), 0});
    };
    spy.create();
    const auto connection = CXcbConnection::find(idOf(*spy.window));
    EXPECT_LT(xcb_get_maximum_request_length(connection->get()), 3000u * 2000u);
    pumpAll(*client);
    EXPECT_FALSE(connection->isBroken());
    for (std::int32_t y = 2000 - 480; y < 2000; ++y)
        ASSERT_EQ(client->pixelOf(idOf(*spy.window), 2500, y), 0xFF0000u | (y & 255) << 8);
    EXPECT_EQ(screenPixel(639, 479), CWindowSpy::colour);
    client->destroyWindow(screen);
}

TEST_F(CXcbWindows, SendsNothingWhileThereIsNothingToDo) {
    createPainted();
    CWindowSpy popup;
    popup.options.parent = spy.window->getHandle();
    popup.options.style = 0x80000000;
    popup.create();
    spy.window->startTimer(1, 10000);
    pumpAll(*client);
    const auto connection = CXcbConnection::find(idOf(*spy.window));
    const std::uint64_t before = xcb_total_written(connection->get());
    for (int i = 0; i < 100; ++i)
        spy.window->pump();
    EXPECT_EQ(xcb_total_written(connection->get()), before);
}

// Popups

TEST_F(CXcbWindows, APopupFloatsAboveTheHostsTopLevelWindow) {
    const xcb_window_t inner = client->createWindow({0, 0, 300, 200}, parent);
    spy.options.parent = handleOf(inner);
    createPainted();
    CWindowSpy popup;
    popup.options.parent = spy.window->getHandle();
    popup.options.style = 0x80000000;
    popup.options.bounds = {400, 300, 500, 350};
    popup.create();
    EXPECT_FALSE(isMapped(*popup.window));
    popup.window->show();
    pumpAll(*client);
    EXPECT_EQ(screenPixel(400, 300), CWindowSpy::colour);
    EXPECT_THAT(property(*popup.window, "WM_TRANSIENT_FOR"), ElementsAre(parent));
    const SXcbAtoms &atoms = CXcbConnection::find(idOf(*popup.window))->getAtoms();
    EXPECT_THAT(property(*popup.window, "_NET_WM_WINDOW_TYPE"),
                ElementsAre(atoms.netWmWindowTypePopupMenu));
    const auto attributes = ownReply(xcb_get_window_attributes_reply(
        client->get(), xcb_get_window_attributes(client->get(), idOf(*popup.window)), nullptr));
    EXPECT_TRUE(attributes->override_redirect);
}

TEST_F(CXcbWindows, APopupCanBeTranslucent) {
    spy.options.style = 0x80000000;
    spy.create();
    EXPECT_THAT(property(*spy.window, "_NET_WM_WINDOW_OPACITY"), IsEmpty());
    spy.window->setAlpha(0xD8);
    EXPECT_THAT(property(*spy.window, "_NET_WM_WINDOW_OPACITY"), ElementsAre(0xD8D8D8D8));
    spy.window->setAlpha(255);
    EXPECT_THAT(property(*spy.window, "_NET_WM_WINDOW_OPACITY"), IsEmpty());
}

TEST_F(CXcbWindows, APopupInFrontHasTheKeyboard) {
    createPainted();
    spy.window->bringToFront();
    const auto focus = [] {
        return ownReply(xcb_get_input_focus_reply(client->get(), xcb_get_input_focus(client->get()),
                                                  nullptr))
            ->focus;
    };
    EXPECT_NE(focus(), idOf(*spy.window)) << "a child leaves it to the host";
    CWindowSpy popup;
    popup.options.style = 0x90000000;
    popup.create();
    pumpAll(*client);
    const xcb_window_t cover = client->createWindow({10, 20, 110, 70});
    EXPECT_EQ(screenPixel(10, 20), black);
    popup.window->bringToFront();
    pumpAll(*client);
    EXPECT_EQ(screenPixel(10, 20), CWindowSpy::colour);
    EXPECT_EQ(focus(), idOf(*popup.window));
    client->destroyWindow(cover);
}

// Reports

TEST_F(CXcbWindows, ADisabledOneReportsNoInput) {
    createPainted();
    auto &window = static_cast<CXcbWindow &>(*spy.window);
    window.enable(false);
    for (const unsigned message :
         {NativeKeyDown, NativeKeyUp, NativeMouseMove, NativeRightUp, NativeMouseWheel})
        window.report(message);
    EXPECT_THAT(spy.messages, IsEmpty());
    window.report(NativeSetFocus);
    EXPECT_EQ(spy.messages.size(), 1u);
    window.enable(true);
    window.report(NativeKeyDown);
    EXPECT_EQ(spy.messages.size(), 2u);
}

TEST_F(CXcbWindows, SelectsFurtherEvents) {
    spy.create();
    auto &window = static_cast<CXcbWindow &>(*spy.window);
    const auto mask = [&] {
        return ownReply(xcb_get_window_attributes_reply(
                            window.getConnection().get(),
                            xcb_get_window_attributes(window.getConnection().get(), window.getId()),
                            nullptr))
            ->your_event_mask;
    };
    const std::uint32_t before = mask();
    EXPECT_EQ(before & XCB_EVENT_MASK_KEY_PRESS, 0u) << "the host's keys";
    window.selectEvents(XCB_EVENT_MASK_KEY_PRESS);
    EXPECT_EQ(mask(), before | XCB_EVENT_MASK_KEY_PRESS);
    window.unselectEvents(XCB_EVENT_MASK_KEY_PRESS);
    EXPECT_EQ(mask(), before);
}

}  // namespace
