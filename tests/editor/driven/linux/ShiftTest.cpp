// Not on Windows: Wine sometimes reports that no key is down when the mouse has just moved.
#include "editor/driven/DrivenEditor.h"
#include "platform/linux/windowing/CTestClient.h"

namespace {

constexpr xcb_keysym_t shiftKey = 0xFFE1;

class DrivenShift : public DrivenEditor {};

TEST_F(DrivenShift, SlowsADragTenfoldWithoutAJump) {
    CTestClient user;
    driven.effect.setParameter(kInGain, 0.25f);
    driven.pressAt({40, 40});
    driven.moveTo({60, 40});
    user.pressKey(shiftKey);
    driven.moveTo({61, 40});  // the last movement at the full speed
    EXPECT_FLOAT_EQ(driven.effect.getParameter(kInGain), 0.25f + 21 * 0.005f);
    driven.moveTo({161, 40});
    EXPECT_FLOAT_EQ(driven.effect.getParameter(kInGain), 0.25f + 21 * 0.005f + 100 * 0.0005f);
    user.releaseKey(shiftKey);
    desktop->release();
    driven.settle();
}

TEST_F(DrivenShift, SlowsTheWheelFourfold) {
    CTestClient user;
    driven.effect.setParameter(kInGain, 0.25f);
    user.pressKey(shiftKey);
    driven.turnWheelAt({40, 40}, 1);
    user.releaseKey(shiftKey);
    EXPECT_FLOAT_EQ(driven.effect.getParameter(kInGain), 0.25f + 0.00625f);
}

}  // namespace
