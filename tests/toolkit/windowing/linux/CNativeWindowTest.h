#pragma once

#include "platform/NativeMouse.h"
#include "platform/linux/windowing/CDisplayFixture.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "toolkit/windowing/CHeardWindow.h"

#include <gmock/gmock.h>

/// A window of 100 by 50 at 10, 20 in a host's window of 300 by 200 at 50, 60 on the screen, and
/// what listens to it. The host has the keyboard.
class CNativeWindowTest : public CDisplayFixture, public CHeardWindow {
protected:
    CNativeWindowTest() {
        client->movePointer(outside.x, outside.y);
        client->focus(host);
    }
    ~CNativeWindowTest() override {
        client->release(leftButton);
        window.reset();
        client->destroyWindow(host);
    }

    /// Opens a window in a host's window.
    static void openIn(CWindow &opened, xcb_window_t parent) {
        openInNative(opened, ::handleOf(parent));
    }
    /// Opens a window above that of the test.
    void openPopup(CWindow &popup) {
        const CWindowAttributes attributes(Tessitor::GUI::Windowing::EWindowKind::Popup);
        popup.setParentWindow(window.get());
        popup.setWindowAttributes(&attributes, true);
    }
    std::unique_ptr<CWindow> openPopup(const CRect &area = CRect(200, 210, 60, 40)) {
        auto popup = std::make_unique<CWindow>(area);
        listenTo(*popup);
        openPopup(*popup);
        handleMessages();
        return popup;
    }
    /// Opens the window of the test and begins to listen.
    void open() {
        window = std::make_unique<CWindow>(CRect(10, 20, 100, 50));
        openIn(*window, host);
        listenTo(*window);
        handleMessages();
        log.clear();
    }
    static void *handleOf(const CWindow &window) { return window.getWindowHandle()->native; }
    std::shared_ptr<CXcbConnection> connection() const {
        return CXcbConnection::find(idOf(handleOf(*window)));
    }

    static void moveMouse(SNativePoint position) { client->movePointer(position.x, position.y); }
    /// Lets the windows hear of all that has happened, and of what comes of that.
    static void handleMessages() {
        pumpAll(*client);
        pumpAll(*client);
    }
    void deliverMessages() override { handleMessages(); }

    static xcb_window_t focus() {
        return ownReply(xcb_get_input_focus_reply(client->get(), xcb_get_input_focus(client->get()),
                                                  nullptr))
            ->focus;
    }
    /// Another program can have the pointer and the keyboard.
    static void expectNothingHeld() {
        handleMessages();
        EXPECT_EQ(nativeMouseCapture(), nullptr);
        EXPECT_TRUE(client->canGrabPointer());
        EXPECT_TRUE(client->canGrabKeyboard());
    }
    /// Likewise, and the host has its keyboard.
    void expectNothingTaken() {
        expectNothingHeld();
        EXPECT_EQ(focus(), host);
    }

    static constexpr SNativePoint outside = {500, 400}, inside = {65, 87};  // 5, 7 in the window
    static constexpr int leftButton = 1, rightButton = 3;

    xcb_window_t host = client->createWindow({50, 60, 350, 260});
};
