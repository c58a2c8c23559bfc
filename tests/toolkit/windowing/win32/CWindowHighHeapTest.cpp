#include "CNativeWindowTest.h"
#include "platform/win32/windowing/CHighHeap.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

using CWindowHighHeap = CNativeWindowTest;

TEST_F(CWindowHighHeap, KeepsNothingFromAWindow) {
    const CHighHeap heap;
    open();
    ASSERT_GE(reinterpret_cast<std::uintptr_t>(window.get()), 0x100000000u);
    auto *control = new CSpyControl(window->getControlRoot(), "c", CRect(0, 0, 100, 50), log);
    window->getControlRoot()->addControl(control);
    window->redrawWindow();
    EXPECT_THAT(take(), Contains("c: draw 0,0,100,50"));
    moveMouse(inside);
    EXPECT_THAT(take(), Contains("movement 512 at 5,7"));
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    sendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("left down 513 at 5,7", "left up 514 at 5,7"));
    SetFocus(handleOf(*window));
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("gained focus"));
    SetCapture(host);
    sendMouse(MOUSEEVENTF_WHEEL, 120);
    EXPECT_THAT(takeWithoutMovements(), ElementsAre("scroll 1.000000 522 at 5,7"));
    ReleaseCapture();
    window.reset();  // as long as the high heap exists
    log.clear();
}

}  // namespace
