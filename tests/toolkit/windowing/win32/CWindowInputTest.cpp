// What the system sends to a window when the mouse and the keys are used.
#include "CNativeWindowTest.h"
#include "platform/win32/windowing/SampleDrop.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

using CWindowInput = CNativeWindowTest;

TEST_F(CWindowInput, TheMouseMoves) {
    open();
    moveMouse(inside);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
}

TEST_F(CWindowInput, ButtonsArePressed) {
    open();
    moveMouse(inside);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("left down 513 at 5,7"));
    EXPECT_EQ(GetCapture(), handleOf(*window));
    sendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("left up 514 at 5,7"));
    EXPECT_EQ(GetCapture(), nullptr);
    sendMouse(MOUSEEVENTF_RIGHTDOWN);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("right down 516 at 5,7"));
    EXPECT_EQ(GetCapture(), handleOf(*window));
    sendMouse(MOUSEEVENTF_RIGHTUP);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("right up 517 at 5,7"));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(CWindowInput, TheSecondClickIsADoubleClick) {
    open();
    moveMouse(inside);
    for (int i = 0; i < 3; ++i) {
        sendMouse(MOUSEEVENTF_LEFTDOWN);
        sendMouse(MOUSEEVENTF_LEFTUP);
    }
    EXPECT_THAT(takeWithoutMovements(),
                ElementsAre("left down 513 at 5,7", "left up 514 at 5,7", "double click 515 at 5,7",
                            "left up 514 at 5,7", "left down 513 at 5,7", "left up 514 at 5,7"));
}

TEST_F(CWindowInput, ADragGoesOnOutsideTheWindow) {
    open();
    moveMouse(inside);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    handleMessages();
    moveMouse({40, 500});
    EXPECT_THAT(take(), Contains("movement 512 at -20,420"));
    sendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_THAT(takeWithoutMovements(), Contains("left up 514 at -20,420"));
    moveMouse({45, 500});
    EXPECT_THAT(take(), testing::Not(Contains("movement 512 at -15,420")));
}

TEST_F(CWindowInput, TheMouseLeavesOnce) {
    open();
    moveMouse(inside);
    handleMessages();
    moveMouse(outside);
    ASSERT_TRUE(waitFor("leaving 675 at 0,0"));
    log.clear();
    moveMouse({outside.x + 1, outside.y});
    TRACKMOUSEEVENT tracked = {sizeof tracked, TME_QUERY, nullptr, 0};
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_TRUE(TrackMouseEvent(&tracked));
    EXPECT_EQ(tracked.dwFlags, 0u) << "another leaving would follow";
}

// In the next two, X may still report that no key is down because the mouse has just moved.

TEST_F(CWindowInput, KeysComeWithTheMouse) {
    open();
    moveMouse(inside);
    for (const auto &[key, name] : {std::pair<WORD, std::string>(VK_CONTROL, "control"),
                                    {VK_SHIFT, "shift"},
                                    {VK_MENU, "alt"}}) {
        const auto turnWithKey = [&modifier = key] {
            sendKey(modifier, true);
            sendMouse(MOUSEEVENTF_WHEEL, 120);
            handleMessages();
            sendKey(modifier, false);
        };
        EXPECT_TRUE(repeatUntil("scroll 1.000000 522 at 5,7 " + name, turnWithKey)) << name;
    }
}

TEST_F(CWindowInput, ShiftTypesACapital) {
    open();
    SetFocus(handleOf(*window));
    const auto typeCapital = [] {
        sendKey(VK_SHIFT, true);
        sendKey('A', true);
        handleMessages();
        sendKey('A', false);
        sendKey(VK_SHIFT, false);
    };
    EXPECT_TRUE(repeatUntil("down 'A' 56 shift", typeCapital));
}

// The wheel

TEST_F(CWindowInput, TheWheelTurns) {
    open();
    moveMouse(inside);
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("scroll 1.000000 522 at 5,7"));
    sendMouse(MOUSEEVENTF_WHEEL, -60);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("scroll -0.500000 522 at 5,7"));
}

TEST_F(CWindowInput, TheWheelIsTakenFromAHostThatKeepsIt) {
    open();
    SetCapture(host);
    moveMouse(inside);
    sendMouse(MOUSEEVENTF_WHEEL, 240);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("scroll 2.000000 522 at 5,7"));
    moveMouse(outside);
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_THAT(takeWithoutMovements(), IsEmpty());
    window->destroyWindow();
    log.clear();
    moveMouse(inside);
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_THAT(takeWithoutMovements(), IsEmpty());
}

// Whether the host got the wheel shows in what the hook leaves in the queue.
TEST_F(CWindowInput, TheHostKeepsTheWheelIfNobodyListens) {
    open();
    window->setMouseListener(nullptr);
    SetCapture(host);
    moveMouse(inside);
    handleMessages();
    MSG message;
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_TRUE(PeekMessageA(&message, host, WM_MOUSEWHEEL, WM_MOUSEWHEEL, PM_REMOVE));
    window->setMouseListener(&listener);
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_FALSE(PeekMessageA(&message, host, WM_MOUSEWHEEL, WM_MOUSEWHEEL, PM_REMOVE));
}

TEST_F(CWindowInput, TheLastFocusedOfTwoWindowsHasTheWheel) {
    open();
    EventLog otherLog;
    CListener otherListener(otherLog);
    const auto other = open(CRect(150, 20, 100, 50));
    other->setMouseListener(&otherListener);
    constexpr SNativePoint insideOther = {205, 87};
    const auto turnOverBoth = [&] {
        log.clear();
        otherLog.clear();
        SetCapture(host);
        for (const SNativePoint position : {inside, insideOther}) {
            moveMouse(position);
            sendMouse(MOUSEEVENTF_WHEEL, 120);
            handleMessages();
        }
        ReleaseCapture();
    };
    turnOverBoth();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(otherLog, ElementsAre("scroll 1.000000 522 at 5,7"));
    SetFocus(handleOf(*window));
    turnOverBoth();
    EXPECT_THAT(log, ElementsAre("scroll 1.000000 522 at 5,7"));
    EXPECT_THAT(otherLog, IsEmpty());
    other->destroyWindow();
    turnOverBoth();
    EXPECT_THAT(log, ElementsAre("scroll 1.000000 522 at 5,7"));
}

// Keys

TEST_F(CWindowInput, KeysAreTyped) {
    open();
    SetFocus(handleOf(*window));
    EXPECT_THAT(take(), ElementsAre("gained focus"));
    const auto typed = [this](WORD key) {
        sendKey(key, true);
        sendKey(key, false);
        return take();
    };
    EXPECT_THAT(typed('A'), ElementsAre("down 'a' 56", "up 'a' 56"));
    EXPECT_THAT(typed('7'), ElementsAre("down '7' 56", "up '7' 56"));
    EXPECT_THAT(typed(VK_BACK), ElementsAre("down '\b' 0 special", "up '\b' 0 special"));
    EXPECT_THAT(typed(VK_F1), ElementsAre("down '' 24 special", "up '' 24 special"));
    SetFocus(host);
    EXPECT_THAT(take(), ElementsAre("lost focus"));
    EXPECT_THAT(typed('A'), IsEmpty());
}

// Files

TEST_F(CWindowInput, FilesAreDropped) {
    open();
    HGLOBAL drop = createSampleDrop();
    PostMessageA(handleOf(*window), WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("drop 7,8 C:\\one.wav C:\\two.wav"));
    EXPECT_EQ(GlobalFlags(drop), UINT{GMEM_INVALID_HANDLE});
    EXPECT_NE(GetWindowLongPtrA(handleOf(*window), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
}

}  // namespace
