// Windows that a window manager handles, or would handle if there were one.
#include "platform/INativeBitmap.h"
#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/CWindowManager.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/WindowProperty.h"
#include "platform/windowing/CWindowSpy.h"

#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t resizable = 0xCF0008, fixed = 0xCA0000;

class CXcbTopLevel : public testing::TestWithParam<bool> {
protected:
    CXcbTopLevel() {
        if (GetParam())
            manager = std::make_unique<CWindowManager>(client);
        spy.options.style = resizable;
        spy.options.bounds = {100, 120, 300, 270};
    }

    void show() {
        spy.create();
        spy.window->show();
        EXPECT_TRUE(pumpUntil([this] { return isPainted(); }));
    }
    /// @return whether the window has the size and has painted it to the end.
    bool isPainted(std::uint16_t width = 200, std::uint16_t height = 150) {
        if (!isViewable())
            return false;
        const auto area = ownReply(
            xcb_get_geometry_reply(client.get(), xcb_get_geometry(client.get(), getId()), nullptr));
        return area->width == width && area->height == height &&
               client.pixelOf(getId(), width - 1, height - 1) == CWindowSpy::colour;
    }
    bool isViewable() {
        const auto reply = ownReply(xcb_get_window_attributes_reply(
            client.get(), xcb_get_window_attributes(client.get(), getId()), nullptr));
        return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    }
    xcb_window_t getId() const { return idOf(*spy.window); }
    std::vector<std::uint32_t> property(std::string_view name) {
        return numbersOf(client, getId(), name);
    }
    /// Sends what a window manager sends when the user wants something.
    void sendProtocol(const char *name) {
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = getId();
        message.type = atomOf(client, "WM_PROTOCOLS");
        message.data.data32[0] = atomOf(client, name);
        message.data.data32[1] = 12345;
        xcb_send_event(client.get(), 0, getId(), 0, reinterpret_cast<const char *>(&message));
        pumpAll(client);
    }

    CVirtualDisplay display = CVirtualDisplay("640x480x24");
    CTestClient client;
    std::unique_ptr<CWindowManager> manager;
    CWindowSpy spy;
};

INSTANTIATE_TEST_SUITE_P(Managers, CXcbTopLevel, testing::Bool(),
                         [](const auto &manager) { return manager.param ? "Managed" : "Alone"; });

TEST_P(CXcbTopLevel, IsSeenWhereItWasPut) {
    show();
    const auto [left, top, right, bottom] = spy.window->getScreenArea();
    EXPECT_EQ(left, 100);
    EXPECT_EQ(top, 120);
    EXPECT_EQ(right, 300);
    EXPECT_EQ(bottom, 270);
    EXPECT_EQ(client.pixelOf(client.getScreen().root, 100, 120), CWindowSpy::colour);
}

TEST_P(CXcbTopLevel, ReportsWhereItIsMoved) {
    show();
    spy.messages.clear();
    spy.window->moveAndResize({50, 60, 370, 300});
    const auto isThere = [this] {
        const auto [left, top, right, bottom] = spy.window->getScreenArea();
        return left == 50 && top == 60 && right == 370 && bottom == 300;
    };
    EXPECT_TRUE(pumpUntil(isThere));
    EXPECT_TRUE(pumpUntil([this] { return isPainted(320, 240); }));
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(50 | 60 << 16));
    EXPECT_THAT(spy.all(NativeSize), ElementsAre(320 | 240 << 16));
    spy.messages.clear();
    // As a user who drags the window
    const std::uint32_t position[] = {20, 30};
    xcb_configure_window(client.get(), getId(), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                         position);
    client.synchronise();
    EXPECT_TRUE(pumpUntil([this] { return !spy.all(NativeMove).empty(); }));
    EXPECT_TRUE(pumpUntil([this] { return spy.window->getScreenArea().left == 20; }));
    ASSERT_FALSE(spy.all(NativeMove).empty());
    EXPECT_EQ(spy.all(NativeMove).back(), 20 | 30 << 16);
    EXPECT_THAT(spy.all(NativeSize), IsEmpty());
}

TEST_P(CXcbTopLevel, ClosesByDefault) {
    show();
    sendProtocol("WM_DELETE_WINDOW");
    EXPECT_EQ(spy.all(NativeClose).size(), 1u);
    EXPECT_EQ(spy.all(NativeDestroy).size(), 1u);
    EXPECT_EQ(spy.ends, 1);
    EXPECT_EQ(spy.window->getHandle(), nullptr);
}

TEST_P(CXcbTopLevel, StaysIfTheListenerRefuses) {
    show();
    spy.onMessage = [](const CWindowSpy::SMessage &message) {
        return message.number == NativeClose ? CWindowSpy::Result(-1) : std::nullopt;
    };
    sendProtocol("WM_DELETE_WINDOW");
    EXPECT_EQ(spy.all(NativeClose).size(), 1u);
    EXPECT_EQ(spy.ends, 0);
    EXPECT_TRUE(isPainted());
}

TEST_P(CXcbTopLevel, MayBeDeletedWhenItIsClosed) {
    show();
    spy.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeClose)
            spy.window.reset();
        return std::nullopt;
    };
    xcb_window_t id = getId();
    sendProtocol("WM_DELETE_WINDOW");
    EXPECT_EQ(spy.window, nullptr);
    EXPECT_EQ(spy.all(NativeDestroy).size(), 1u);
    EXPECT_EQ(spy.ends, 0);
    client.synchronise();
    EXPECT_EQ(textOf(client, id, "WM_NAME"), "");
}

TEST_P(CXcbTopLevel, AnswersThePingOfAManager) {
    show();
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(client.get(), client.getScreen().root, XCB_CW_EVENT_MASK, &mask);
    sendProtocol("_NET_WM_PING");
    client.synchronise();
    const xcb_atom_t ping = atomOf(client, "_NET_WM_PING");
    std::vector<std::uint32_t> answer;
    while (const auto event = ownReply(xcb_poll_for_event(client.get()))) {
        const auto &message = as<xcb_client_message_event_t>(*event);
        if (typeOf(*event) == XCB_CLIENT_MESSAGE && message.data.data32[0] == ping)
            answer = {message.window, message.data.data32[1]};
    }
    EXPECT_THAT(answer, ElementsAre(client.getScreen().root, 12345));
}

TEST_P(CXcbTopLevel, TellsWhatItIs) {
    show();
    EXPECT_EQ(textOf(client, getId(), "WM_NAME"), "window");
    EXPECT_EQ(textOf(client, getId(), "_NET_WM_NAME"), "window");
    spy.window->setTitle("Café");
    pumpAll(client);
    EXPECT_EQ(textOf(client, getId(), "WM_NAME"), "Café");
    EXPECT_EQ(textOf(client, getId(), "_NET_WM_NAME"), "Café");
    const std::string name = spy.options.className;
    EXPECT_EQ(textOf(client, getId(), "WM_CLASS"), name + '\0' + name + '\0');
    EXPECT_THAT(property("_NET_WM_PID"), ElementsAre(static_cast<std::uint32_t>(getpid())));
    EXPECT_THAT(property("WM_PROTOCOLS"), Contains(atomOf(client, "WM_DELETE_WINDOW")));
    EXPECT_THAT(property("_NET_WM_WINDOW_TYPE"),
                ElementsAre(atomOf(client, "_NET_WM_WINDOW_TYPE_NORMAL")));
    EXPECT_THAT(property("WM_TRANSIENT_FOR"), IsEmpty());
}

TEST_P(CXcbTopLevel, FloatsAboveItsOwner) {
    const xcb_window_t owner = client.createWindow({0, 0, 50, 50}, 0, true);
    if (manager) {
        EXPECT_TRUE(CWindowManager::waitFor(client, owner));
    }
    spy.options.parent = handleOf(client.createWindow({0, 0, 20, 20}, owner));
    show();
    EXPECT_THAT(property("WM_TRANSIENT_FOR"), ElementsAre(owner));
}

TEST_P(CXcbTopLevel, OnlySomeStylesAreResizable) {
    constexpr std::size_t flags = 0, leastWidth = 5, greatestHeight = 8;
    constexpr std::uint32_t hasLimits = 16 | 32;
    show();
    EXPECT_EQ(property("WM_NORMAL_HINTS").at(flags) & hasLimits, 0u);
    spy.window.reset();
    spy.options.style = fixed;
    show();
    EXPECT_EQ(property("WM_NORMAL_HINTS").at(flags) & hasLimits, hasLimits);
    EXPECT_EQ(property("WM_NORMAL_HINTS").at(leastWidth), 200u);
    EXPECT_EQ(property("WM_NORMAL_HINTS").at(greatestHeight), 150u);
    spy.window->moveAndResize({100, 120, 150, 160});
    pumpAll(client);
    EXPECT_EQ(property("WM_NORMAL_HINTS").at(leastWidth), 50u) << "the program may resize it";
    EXPECT_TRUE(pumpUntil([this] { return isPainted(50, 40); }));
}

TEST_P(CXcbTopLevel, HasAnIcon) {
    // Blue, green, red, alpha, from the bottom: half transparent and too green, opaque green, half
    // transparent red
    const std::uint8_t pixels[] = {0, 255, 0, 128, 0, 255, 0, 255, 0, 0, 128, 128};
    const auto icon = createNativeBitmap(1, 3, pixels);
    spy.options.icon = icon.get();
    show();
    EXPECT_THAT(property("_NET_WM_ICON"), ElementsAre(1, 3, 0x80FF0000, 0xFF00FF00, 0x8000FF00));
}

TEST_P(CXcbTopLevel, AnIconMayBeTooLarge) {
    const std::vector<std::uint8_t> pixels(std::size_t{3000} * 2000 * 4);
    const auto icon = createNativeBitmap(3000, 2000, pixels);
    spy.options.icon = icon.get();
    show();
    // A window manager may have added its own.
    EXPECT_LT(property("_NET_WM_ICON").size(), 10000u);
}

TEST_P(CXcbTopLevel, CanBeHiddenAndShownAgain) {
    show();
    spy.window->hide();
    EXPECT_TRUE(pumpUntil([this] { return !isViewable(); }));
    EXPECT_TRUE(pumpUntil([this] {
        const auto state = property("WM_STATE");
        return state.empty() || state[0] == 0;  // withdrawn
    }));
    spy.window->show();
    EXPECT_TRUE(pumpUntil([this] { return isPainted(); }));
}

TEST_P(CXcbTopLevel, ComesToTheFront) {
    show();
    CWindowSpy other;
    other.options.style = resizable;
    other.options.bounds = spy.options.bounds;
    other.onPaint = [](INativeSurface &picture) { picture.setPixel({0, 0}, {255, 255, 0}); };
    other.create();
    other.window->show();
    const auto top = [this] { return client.pixelOf(client.getScreen().root, 100, 120); };
    EXPECT_TRUE(pumpUntil([&] { return top() == 0xFFFF00; }));
    spy.window->bringToFront();
    EXPECT_TRUE(pumpUntil([&] { return top() == CWindowSpy::colour; }));
    if (manager) {
        EXPECT_TRUE(pumpUntil([&] {
            const auto active = numbersOf(client, client.getScreen().root, "_NET_ACTIVE_WINDOW");
            return !active.empty() && active[0] == getId();
        }));
    }
}

}  // namespace
