#include "toolkit/events/CMouseEvent.h"

#include <gtest/gtest.h>

using Tessitor::GUI::Events::CMouseEvent;
using Tessitor::GUI::Events::EMouseEventType;
using Tessitor::GUI::Windowing::CMouse;
using Tessitor::MathTools::CPoint;

namespace {

TEST(CMouseEvent, StartsEmpty) {
    const CMouseEvent event;
    EXPECT_EQ(event.getMouse(), nullptr);
    EXPECT_EQ(event.getWheelAmount(), 0.0);
    EXPECT_FALSE(event.isControlDown() || event.isShiftDown() || event.isAltDown());
    EXPECT_TRUE(event.getClass() == "CMouseEvent");
}

TEST(CMouseEvent, ReadsThePositionFromTheMouse) {
    CMouse mouse;
    CMouseEvent event(&mouse);
    mouse.setPosition({3, 4});
    EXPECT_EQ(event.getMousePosition(), CPoint(3, 4));
    event.setMousePosition({-5, 6});
    EXPECT_EQ(mouse.getPosition(), CPoint(-5, 6));
}

TEST(CMouseEvent, HasNoPositionWithoutAMouse) {
    CMouseEvent event;
    event.setMousePosition({3, 4});
    EXPECT_EQ(event.getMousePosition(), CPoint(0, 0));
}

TEST(CMouseEvent, CopiesModifiersAndNothingElse) {
    CMouseEvent from, to;
    from.setModifiers(true, false, true);
    from.setWheelAmount(2.5);
    from.setType(EMouseEventType::Scroll);
    to.copyModifiers(from);
    EXPECT_TRUE(to.isControlDown());
    EXPECT_FALSE(to.isShiftDown());
    EXPECT_TRUE(to.isAltDown());
    EXPECT_EQ(to.getWheelAmount(), 0.0);
    EXPECT_EQ(to.getType(), EMouseEventType::Movement);
}

TEST(CMouseEvent, NumbersItsTypesLikeWindowMessages) {
    EXPECT_EQ(static_cast<int>(EMouseEventType::Movement), 512);
    EXPECT_EQ(static_cast<int>(EMouseEventType::LeftDown), 513);
    EXPECT_EQ(static_cast<int>(EMouseEventType::LeftUp), 514);
    EXPECT_EQ(static_cast<int>(EMouseEventType::DoubleClick), 515);
    EXPECT_EQ(static_cast<int>(EMouseEventType::RightDown), 516);
    EXPECT_EQ(static_cast<int>(EMouseEventType::RightUp), 517);
    EXPECT_EQ(static_cast<int>(EMouseEventType::Scroll), 522);
    EXPECT_EQ(static_cast<int>(EMouseEventType::Leaving), 675);
}

}  // namespace
