#include "toolkit/controls/CClickableKnob.h"

#include "toolkit/controls/CRootTest.h"

namespace {

using Tessitor::GUI::Controls::CClickableKnob;
using testing::ElementsAre;
using testing::IsEmpty;

class CClickableKnobPress : public CRootTest {
protected:
    CClickableKnob *make(bool isDragEnabled) {
        auto *knob = new CClickableKnob(&root, 4, CRect(10, 10, 20, 20), &actions, isDragEnabled);
        root.addControl(knob);
        return knob;
    }

    CValueLog actions;
};

TEST_F(CClickableKnobPress, IsAKnobWithItsOwnRecord) {
    const CClickableKnob *knob = make(false);
    EXPECT_FALSE(knob->isDragEnabled());
    EXPECT_TRUE(make(true)->isDragEnabled());
    EXPECT_TRUE(knob->getClass() == "CClickableKnob");
    EXPECT_TRUE(knob->getClass().isTypeOf(Tessitor::Basics::CClass("CKnob")));
    EXPECT_EQ(knob->getDefaultValue(), 0.5);
    EXPECT_TRUE(knob->isMouseEnabled());
}

TEST_F(CClickableKnobPress, DragsLikeAKnobIfEnabled) {
    const CClickableKnob *knob = make(true);
    press(20, 20);
    EXPECT_EQ(root.getLockedControl(), knob);
    move(30, 20);
    release(30, 20);
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_FALSE(knob->isDragging());
    EXPECT_THAT(actions.take(), ElementsAre(testing::DoubleEq(0.05)));
}

TEST_F(CClickableKnobPress, ReportsAPressAtOnceIfItCannotBeDragged) {
    make(false)->setValue(0.25);
    press(20, 20);
    EXPECT_THAT(actions.take(), ElementsAre(0.25));
    EXPECT_FALSE(root.controlIsLocked());
    release(20, 20);
    EXPECT_THAT(actions.take(), IsEmpty());
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
}

TEST_F(CClickableKnobPress, DoesNotMoveWhenDraggingIsDisabled) {
    const CClickableKnob *knob = make(false);
    press(20, 20);
    move(30, 20);
    EXPECT_EQ(knob->getValue(), 0.0);
    EXPECT_EQ(actions.take().size(), 1u);
}

TEST_F(CClickableKnobPress, KeepsALockOfOthersWhenDraggingIsDisabled) {
    CClickableKnob *knob = make(false);
    root.lockControl(knob);
    release(20, 20);
    EXPECT_TRUE(root.controlIsLocked());
}

TEST_F(CClickableKnobPress, TurnsByWheelAndDoubleClickAllTheSame) {
    make(false);
    scroll(20, 20, 1.0);
    doubleClick(20, 20);
    EXPECT_THAT(actions.take(), ElementsAre(0.025, 0.5));
}

TEST_F(CClickableKnobPress, CanBeSwitched) {
    CClickableKnob *knob = make(false);
    knob->setDragEnabled(true);
    press(20, 20);
    EXPECT_TRUE(knob->isDragging());
}

TEST_F(CClickableKnobPress, NeedsNoListener) {
    make(false)->registerActionListener(nullptr);
    press(20, 20);
    EXPECT_FALSE(root.controlIsLocked());
}

}  // namespace
