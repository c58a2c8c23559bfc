#include "platform/linux/windowing/pointer/CXcbPointer.h"

#include "platform/NativeMouse.h"
#include "platform/linux/windowing/CHostFixture.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Message = SMouseMessage;

constexpr int leftButton = 1, middleButton = 2, rightButton = 3;
constexpr xcb_keysym_t shiftKey = 0xFFE1;

class CXcbPointer : public CHostFixture {
protected:
    template <typename Act>
    std::vector<Message> messagesOf(Act act) {
        return mouseMessages(tellsOf(editor, act));
    }
    /// Moves the pointer to a place in the editor.
    void point(int x, int y) { client->movePointer(60 + x, 80 + y); }
    void pressAt(int x, int y) {
        point(x, y);
        client->press(leftButton);
        pumpAll(*client);
    }
    /// As CWindow does.
    void captureOnPress() {
        editor.onMessage = [this](const CWindowSpy::SMessage &message) {
            if (message.number == NativeLeftDown)
                captureNativeMouse(editor.window->getHandle());
            if (message.number == NativeLeftUp)
                releaseNativeMouse();
            return std::optional<std::intptr_t>(0);
        };
    }
    void trackLeave() { editor.window->trackMouseLeave(); }
};

TEST_F(CXcbPointer, ReportsMovementsWithThePositionInTheWindow) {
    point(1, 2);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] { point(30, 40); }), ElementsAre(Message{NativeMouseMove, 30, 40}));
    EXPECT_THAT(messagesOf([&] { client->movePointer(59, 100); }), IsEmpty());
}

TEST_F(CXcbPointer, ReportsTheLastOfSeveralMovementsWithTheSameKeys) {
    client->typeKey(shiftKey);  // the first key brings an event of its own
    point(1, 2);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] {
                    point(30, 40);
                    point(31, 40);
                    client->pressKey(shiftKey);
                    point(32, 40);
                }),
                ElementsAre(Message{NativeMouseMove, 31, 40}, Message{NativeMouseMove, 32, 40}));
    client->releaseKey(shiftKey);
}

TEST_F(CXcbPointer, ReportsEnteringAsAMovement) {
    EXPECT_THAT(messagesOf([&] { point(30, 40); }), ElementsAre(Message{NativeMouseMove, 30, 40}));
}

TEST_F(CXcbPointer, ReportsAReturnToThePlaceWhereItEntered) {
    point(30, 40);
    pumpAll(*client);
    const xcb_timestamp_t entered = connection().getTime();
    for (int i = 0; connection().getTime() == entered; ++i) {
        point(31, 40 + i % 2);
        pumpAll(*client);
    }
    EXPECT_THAT(messagesOf([&] { point(30, 40); }), ElementsAre(Message{NativeMouseMove, 30, 40}));
}

TEST_F(CXcbPointer, ReportsItsButtons) {
    point(30, 40);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] { client->click(leftButton); }),
                ElementsAre(Message{NativeLeftDown, 30, 40}, Message{NativeLeftUp, 30, 40}));
    EXPECT_THAT(messagesOf([&] { client->click(rightButton); }),
                ElementsAre(Message{NativeRightDown, 30, 40}, Message{NativeRightUp, 30, 40}));
    EXPECT_THAT(messagesOf([&] { client->click(middleButton); }),
                ElementsAre(Message{NativeMiddleDown, 30, 40}, Message{NativeMiddleUp, 30, 40}));
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, ReportsADoubleClickInPlaceOfTheSecondPress) {
    point(30, 40);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] { client->click(leftButton, 3); }),
                ElementsAre(Message{NativeLeftDown, 30, 40}, Message{NativeLeftUp, 30, 40},
                            Message{NativeDoubleClick, 30, 40}, Message{NativeLeftUp, 30, 40},
                            Message{NativeLeftDown, 30, 40}, Message{NativeLeftUp, 30, 40}));
}

TEST_F(CXcbPointer, ReportsADoubleClickOfAnotherButtonAsTwoClicks) {
    point(30, 40);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] { client->click(rightButton, 2); }),
                ElementsAre(Message{NativeRightDown, 30, 40}, Message{NativeRightUp, 30, 40},
                            Message{NativeRightDown, 30, 40}, Message{NativeRightUp, 30, 40}));
    EXPECT_THAT(messagesOf([&] { client->click(middleButton, 2); }),
                ElementsAre(Message{NativeMiddleDown, 30, 40}, Message{NativeMiddleUp, 30, 40},
                            Message{NativeMiddleDown, 30, 40}, Message{NativeMiddleUp, 30, 40}));
}

// The wheel

TEST_F(CXcbPointer, ReportsTheWheelWithThePositionOnTheScreen) {
    point(30, 40);
    pumpAll(*client);
    const auto messages = tellsOf(editor, [&] {
        client->click(4);
        client->click(5);
    });
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_THAT(mouseMessages(messages), ElementsAre(Message{NativeMouseWheel, 90, 120},
                                                     Message{NativeMouseWheel, 90, 120}));
    EXPECT_EQ(highOf(static_cast<std::intptr_t>(messages[0].wParam)), 120);
    EXPECT_EQ(highOf(static_cast<std::intptr_t>(messages[1].wParam)), -120);
}

TEST_F(CXcbPointer, IgnoresTheHorizontalWheel) {
    point(30, 40);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] {
                    client->click(6);
                    client->click(7);
                }),
                IsEmpty());
}

// Leaving

TEST_F(CXcbPointer, ReportsThatTheMouseLeavesOnceAfterItWasAskedTo) {
    point(30, 40);
    pumpAll(*client);
    trackLeave();
    EXPECT_THAT(messagesOf([&] { client->movePointer(200, 200); }),
                ElementsAre(Message{NativeMouseLeave, 0, 0}));
    point(30, 40);
    EXPECT_THAT(messagesOf([&] { client->movePointer(200, 200); }),
                ElementsAre(Message{NativeMouseMove, 30, 40}));
}

TEST_F(CXcbPointer, DoesNotLeaveWhenSomebodyGrabsThePointer) {
    point(30, 40);
    pumpAll(*client);
    trackLeave();
    EXPECT_THAT(messagesOf([&] { client->canGrabPointer(); }),
                ElementsAre(Message{NativeMouseMove, 30, 40}));  // when the grab ends
}

TEST_F(CXcbPointer, DoesNotLeaveAWindowForItsChild) {
    CWindowSpy child;
    child.options.parent = editor.window->getHandle();
    child.create();
    point(5, 5);
    pumpAll(*client);
    trackLeave();
    EXPECT_THAT(messagesOf([&] { point(50, 40); }), IsEmpty());
    EXPECT_THAT(mouseMessages(child.messages), ElementsAre(Message{NativeMouseMove, 40, 20}));
    EXPECT_THAT(messagesOf([&] { client->movePointer(200, 200); }),
                ElementsAre(Message{NativeMouseLeave, 0, 0}));
}

TEST_F(CXcbPointer, DoesNotReportAPassageIntoTheChildAsAMovement) {
    CWindowSpy child;
    child.options.parent = editor.window->getHandle();
    child.create();
    EXPECT_THAT(messagesOf([&] { point(50, 40); }), IsEmpty());
}

TEST_F(CXcbPointer, LeavesOnlyWhenADragOutsideHasEnded) {
    captureOnPress();
    pressAt(30, 40);
    trackLeave();
    EXPECT_THAT(messagesOf([&] { client->movePointer(50, 70); }),
                ElementsAre(Message{NativeMouseMove, -10, -10}));
    EXPECT_THAT(messagesOf([&] { client->release(leftButton); }),
                ElementsAre(Message{NativeLeftUp, -10, -10}, Message{NativeMouseLeave, 0, 0}));
}

TEST_F(CXcbPointer, DoesNotLeaveIfADragEndsInside) {
    captureOnPress();
    pressAt(30, 40);
    trackLeave();
    client->movePointer(50, 70);
    point(31, 41);
    pumpAll(*client);
    EXPECT_THAT(messagesOf([&] { client->release(leftButton); }),
                ElementsAre(Message{NativeLeftUp, 31, 41}));
}

// Capture

TEST_F(CXcbPointer, ReportsADragToTheCapturingWindowAlsoFromOutside) {
    captureOnPress();
    pressAt(30, 40);
    EXPECT_EQ(nativeMouseCapture(), editor.window->getHandle());
    EXPECT_TRUE(isPointerHeld());
    EXPECT_THAT(messagesOf([&] { client->movePointer(600, 470); }),
                ElementsAre(Message{NativeMouseMove, 540, 390}));
    EXPECT_THAT(messagesOf([&] { client->release(leftButton); }),
                ElementsAre(Message{NativeLeftUp, 540, 390}));
    EXPECT_EQ(nativeMouseCapture(), nullptr);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, ReportsWhatHappensInOtherWindowsToTheCapturingOne) {
    CWindowSpy child;
    child.options.parent = editor.window->getHandle();
    child.create();
    point(50, 40);
    pumpAll(*client);
    child.messages.clear();
    captureNativeMouse(editor.window->getHandle());
    EXPECT_THAT(messagesOf([&] {
                    point(51, 42);
                    client->click(leftButton);
                }),
                ElementsAre(Message{NativeMouseMove, 51, 42}, Message{NativeLeftDown, 51, 42},
                            Message{NativeLeftUp, 51, 42}));
    EXPECT_THAT(mouseMessages(child.messages), IsEmpty());
    releaseNativeMouse();
    EXPECT_THAT(messagesOf([&] { client->click(leftButton); }), IsEmpty());
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, IgnoresACaptureByAWindowOfSomebodyElse) {
    captureNativeMouse(handleOf(host));
    EXPECT_EQ(nativeMouseCapture(), nullptr);
}

TEST_F(CXcbPointer, GivesThePointerBackWhenAHandlerReleasesTheCapture) {
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown) {
            captureNativeMouse(editor.window->getHandle());
            releaseNativeMouse();
        }
        return std::nullopt;
    };
    pressAt(30, 40);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, DragsAlsoAfterAReleaseDuringTheSamePress) {
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown) {
            captureNativeMouse(editor.window->getHandle());
            releaseNativeMouse();
            captureNativeMouse(editor.window->getHandle());
        }
        if (message.number == NativeLeftUp)
            releaseNativeMouse();
        return std::nullopt;
    };
    pressAt(30, 40);
    EXPECT_THAT(messagesOf([&] {
                    client->movePointer(600, 470);
                    client->release(leftButton);
                }),
                ElementsAre(Message{NativeMouseMove, 540, 390}, Message{NativeLeftUp, 540, 390}));
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, DragsAlsoAfterAReleaseThatIsHandledDuringTheNextPress) {
    int presses = 0;
    editor.onMessage = [&](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown)
            captureNativeMouse(editor.window->getHandle());
        if (message.number == NativeLeftDown && ++presses == 1)
            releaseNativeMouse();
        return std::nullopt;
    };
    point(30, 40);
    client->click(leftButton);
    point(50, 40);
    client->press(leftButton);
    EXPECT_TRUE(isPointerHeld());
    EXPECT_THAT(messagesOf([&] { client->movePointer(600, 470); }),
                ElementsAre(Message{NativeMouseMove, 540, 390}));
}

TEST_F(CXcbPointer, DoesNotReportADragOutsideWithoutACapture) {
    pressAt(30, 40);
    EXPECT_THAT(messagesOf([&] {
                    client->movePointer(600, 470);
                    client->click(4);
                    client->release(leftButton);
                }),
                IsEmpty());
}

TEST_F(CXcbPointer, ReportsADragWithoutACaptureUpToTheEdges) {
    pressAt(30, 40);
    for (const SNativePoint &outside : {SNativePoint{-1, 20}, {20, -1}, {100, 20}, {20, 50}})
        EXPECT_THAT(messagesOf([&] { point(outside.x, outside.y); }), IsEmpty());
    for (const SNativePoint &inside : {SNativePoint{0, 0}, {99, 49}})
        EXPECT_THAT(messagesOf([&] { point(inside.x, inside.y); }),
                    ElementsAre(Message{NativeMouseMove, inside.x, inside.y}));
}

TEST_F(CXcbPointer, KeepsAPressThatComesBeforeTheReleaseIsHandled) {
    captureOnPress();
    point(30, 40);
    client->click(leftButton);
    point(50, 40);
    client->press(leftButton);
    EXPECT_TRUE(isPointerHeld());
    EXPECT_THAT(messagesOf([&] { client->movePointer(600, 470); }),
                ElementsAre(Message{NativeMouseMove, 540, 390}));
}

TEST_F(CXcbPointer, EndsTheCaptureOfAWindowThatIsDestroyed) {
    captureOnPress();
    pressAt(30, 40);
    const auto held = connection().shared_from_this();
    editor.window.reset();
    EXPECT_EQ(held->pointer().getCapture(), 0u);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, EndsTheCaptureOfAWindowThatTheHostDestroys) {
    captureOnPress();
    pressAt(30, 40);
    const auto held = connection().shared_from_this();
    client->destroyWindow(host);
    pumpAll(*client);
    EXPECT_EQ(editor.ends, 1);
    EXPECT_EQ(held->pointer().getCapture(), 0u);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, SurvivesThatAHandlerDestroysTheWindow) {
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown)
            editor.window.reset();
        return std::nullopt;
    };
    pressAt(30, 40);
    EXPECT_EQ(editor.window, nullptr);
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, ReportsAReleaseThatTheServerToldSomebodyElse) {
    captureOnPress();
    pressAt(30, 40);
    xcb_unmap_window(client->get(), host);
    client->release(leftButton);
    xcb_map_window(client->get(), host);
    EXPECT_THAT(messagesOf([&] { point(20, 20); }),
                testing::Contains(Message{NativeLeftUp, 30, 40}));
    EXPECT_EQ(nativeMouseCapture(), nullptr);
    EXPECT_THAT(messagesOf([&] { point(22, 22); }), ElementsAre(Message{NativeMouseMove, 22, 22}));
    EXPECT_TRUE(isPointerFree());
}

TEST_F(CXcbPointer, ReportsNothingToADisabledWindow) {
    editor.window->enable(false);
    EXPECT_THAT(messagesOf([&] {
                    point(30, 40);
                    client->click(leftButton);
                    client->click(4);
                }),
                IsEmpty());
    editor.window->enable(true);
    EXPECT_THAT(messagesOf([&] { point(31, 40); }), ElementsAre(Message{NativeMouseMove, 31, 40}));
}

// What others ask for

TEST_F(CXcbPointer, TellsThePositionAndTheStateOfTheEvent) {
    point(30, 40);
    client->pressKey(shiftKey);
    client->press(leftButton);
    client->movePointer(300, 300);
    client->releaseKey(shiftKey);
    std::vector<SNativePoint> positions;
    std::vector<int> states;
    editor.onMessage = [&](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown) {
            positions.push_back(nativeMousePosition());
            states.push_back(connection().pointer().getState());
        }
        return std::nullopt;
    };
    pumpAll(*client);
    EXPECT_THAT(positions, ElementsAre(SNativePoint{90, 120}));
    EXPECT_THAT(states, ElementsAre(XCB_MOD_MASK_SHIFT));
}

TEST_F(CXcbPointer, AsksForThePositionAndTheStateOtherwise) {
    client->movePointer(222, 111);
    client->pressKey(shiftKey);
    EXPECT_EQ(nativeMousePosition(), (SNativePoint{222, 111}));
    EXPECT_EQ(connection().pointer().getState(), XCB_MOD_MASK_SHIFT);
    client->releaseKey(shiftKey);
}

TEST_F(CXcbPointer, TellsTheWindowWhereItIs) {
    point(30, 40);
    std::vector<SNativePoint> origins;
    editor.onMessage = [&](const CWindowSpy::SMessage &message) {
        const auto [left, top, right, bottom] = editor.window->getScreenArea();
        if (message.number == NativeMouseMove)
            origins.push_back({left, top});
        return std::nullopt;
    };
    const std::uint32_t position[] = {70, 90};
    xcb_configure_window(client->get(), host, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, position);
    pumpAll(*client);
    client->movePointer(101, 121);
    pumpAll(*client);
    EXPECT_EQ(origins.back(), (SNativePoint{80, 110}));
}

}  // namespace
