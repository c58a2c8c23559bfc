// The host has the keys whatever the mouse does in our window.
#include "CNativeWindowTest.h"
#include "platform/linux/windowing/CWindowManager.h"

#include <algorithm>

namespace {

enum class EDesktop { Alone, Managed };

class CWindowHostKeys : public CNativeWindowTest, public testing::WithParamInterface<EDesktop> {
protected:
    CWindowHostKeys() {
        if (GetParam() == EDesktop::Managed)
            manager = std::make_unique<CWindowManager>(*client);
        client->destroyWindow(host);
        host = client->createWindow({50, 60, 350, 260}, 0, GetParam() == EDesktop::Managed);
        const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS;
        xcb_change_window_attributes(client->get(), host, XCB_CW_EVENT_MASK, &events);
        EXPECT_TRUE(manager == nullptr || CWindowManager::waitFor(*client, host));
        client->focus(host);
        open();
        const SNativeRect area = client->areaOf(idOf(handleOf(*window)));
        insideWindow = {area.left + 5, area.top + 7};
        moveMouse(insideWindow);
        handleMessages();
    }
    ~CWindowHostKeys() override {
        window.reset();
        client->destroyWindow(host);
        host = client->createWindow({50, 60, 350, 260});
    }

    /// A window manager may hold a press back until it has looked at it.
    bool hears(const std::string &event) {
        return pumpUntil([&] { return std::find(log.begin(), log.end(), event) != log.end(); });
    }
    void expectKeysReachTheHost() {
        for (const xcb_keysym_t key : {xcb_keysym_t{' '}, xcb_keysym_t{'a'}, xcb_keysym_t{0xFF51}})
            EXPECT_TRUE(reachesHost(key)) << key;
        EXPECT_THAT(take(), testing::Not(testing::Contains(testing::StartsWith("down"))));
    }

    std::unique_ptr<CWindowManager> manager;
    SNativePoint insideWindow{};

private:
    bool reachesHost(xcb_keysym_t key) {
        handleMessages();
        while (ownReply(xcb_poll_for_event(client->get()))) {
        }
        client->typeKey(key);
        handleMessages();
        return pumpUntil([this] {
            const auto event = ownReply(xcb_poll_for_event(client->get()));
            return event && typeOf(*event) == XCB_KEY_PRESS &&
                   as<xcb_key_press_event_t>(*event).event == host;
        });
    }
};

TEST_P(CWindowHostKeys, StayAfterAClick) {
    expectKeysReachTheHost();
    client->click(leftButton);
    EXPECT_TRUE(hears("left up 514 at 5,7"));
    expectKeysReachTheHost();
    client->click(rightButton);
    expectKeysReachTheHost();
}

TEST_P(CWindowHostKeys, StayDuringAndAfterADrag) {
    client->press(leftButton);
    moveMouse({insideWindow.x + 20, insideWindow.y});
    expectKeysReachTheHost();
    moveMouse({600, 400});
    client->release(leftButton);
    expectKeysReachTheHost();
}

TEST_P(CWindowHostKeys, StayAfterTheWheel) {
    client->click(4);
    EXPECT_TRUE(hears("scroll 1.000000 522 at 5,7"));
    expectKeysReachTheHost();
}

TEST_P(CWindowHostKeys, StayDuringAndAfterAPopup) {
    client->press(leftButton);
    handleMessages();
    auto popup = openPopup(CRect(400, 300, 60, 40));
    client->release(leftButton);
    expectKeysReachTheHost();
    log.clear();
    moveMouse({405, 307});
    client->click(leftButton);
    EXPECT_TRUE(hears("left up 514 at 5,7"));
    expectKeysReachTheHost();
    popup->destroyWindow();
    expectKeysReachTheHost();
    expectNothingHeld();
}

INSTANTIATE_TEST_SUITE_P(Managers, CWindowHostKeys,
                         testing::Values(EDesktop::Alone, EDesktop::Managed), [](const auto &test) {
                             return test.param == EDesktop::Alone ? "Alone" : "Managed";
                         });

}  // namespace
