#include "toolkit/controls/CKnob.h"

#include "foundation/CDouble.h"
#include "foundation/CXMLNode.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/controls/Properties.h"

#include <limits>

namespace {

using Tessitor::Basics::CDouble;
using Tessitor::GUI::Controls::CControlDescriptor;
using Tessitor::GUI::Controls::CKnob;
using Tessitor::GUI::Controls::EDescriptorType;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

testing::Matcher<double> near(double value) {
    return DoubleNear(value, 1e-12);
}

class CKnobDrag : public CRootTest {
protected:
    CKnobDrag() { root.addControl(knob); }

    CValueLog actions;
    CKnob *knob = new CKnob(&root, 4, CRect(10, 10, 20, 20), &actions);
};

using CKnobWheel = CKnobDrag;
using CKnobProperties = CKnobDrag;

TEST_F(CKnobDrag, HasItsDefaults) {
    EXPECT_TRUE(knob->isMouseEnabled());
    EXPECT_EQ(knob->getActionListener(), &actions);
    EXPECT_EQ(knob->getValue(), 0.0);
    EXPECT_EQ(knob->getDefaultValue(), 0.5);
    EXPECT_EQ(knob->getCoefficient(), 0.005);
    EXPECT_FALSE(knob->isDragging());
    EXPECT_TRUE(knob->getClass() == "CKnob");
    EXPECT_TRUE(knob->getClass().isTypeOf(Tessitor::Basics::CClass("CAnimation")));
}

TEST_F(CKnobDrag, DoesNotMoveWithoutAPress) {
    move(20, 20);
    move(30, 10);
    EXPECT_THAT(actions.take(), IsEmpty());
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
    EXPECT_EQ(knob->getValue(), 0.0);
}

TEST_F(CKnobDrag, EndsWhenTheMouseIsTakenAway) {
    press(20, 20);
    root.unlockAll();
    move(25, 20);
    EXPECT_FALSE(knob->isDragging());
    EXPECT_THAT(actions.take(), IsEmpty());
}

TEST_F(CKnobDrag, LocksTheMouseAndReportsNothingWhenPressedAndReleased) {
    press(20, 20);
    EXPECT_TRUE(knob->isDragging());
    EXPECT_EQ(root.getLockedControl(), knob);
    release(20, 20);
    EXPECT_FALSE(knob->isDragging());
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_THAT(actions.take(), IsEmpty());
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
}

TEST_F(CKnobDrag, AddsBothAxes) {
    press(20, 20);
    move(30, 20);
    move(30, 10);
    move(40, 30);
    move(120, -80);
    EXPECT_THAT(actions.take(), ElementsAre(near(0.05), near(0.1), near(0.05), near(1.0)));
    move(20, 20);
    EXPECT_THAT(actions.take(), ElementsAre(near(0.0)));
}

TEST_F(CKnobDrag, RedrawsTheKnobAloneAndOncePerStep) {
    press(20, 20);
    move(30, 20);
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("10,10,20,20"));
    move(35, 25);  // the axes cancel each other
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
    EXPECT_EQ(actions.take().size(), 1u);
}

TEST_F(CKnobDrag, StaysContinuousWhenShiftIsPressedAndReleased) {
    press(20, 20);
    move(60, 20);
    EXPECT_THAT(actions.take(), ElementsAre(near(0.2)));
    holdShift(true);
    move(60, 20);
    EXPECT_NEAR(knob->getValue(), 0.2, 1e-12);
    move(70, 20);
    EXPECT_NEAR(knob->getValue(), 0.205, 1e-12);
    EXPECT_EQ(knob->getCoefficient(), 0.0005);
    holdShift(false);
    move(70, 20);
    EXPECT_NEAR(knob->getValue(), 0.205, 1e-12);
    move(71, 20);
    EXPECT_NEAR(knob->getValue(), 0.21, 1e-12);
    EXPECT_EQ(knob->getCoefficient(), 0.005);
}

TEST_F(CKnobDrag, ReadsShiftAtEachMovementInAPanel) {
    CControlPanel *panel = addPanel(root, CRect(100, 100, 100, 100));
    auto *inside = new CKnob(panel, 5, CRect(10, 10, 20, 20), &actions);
    panel->addControl(inside);
    const auto valueAt = [&](int x) {
        move(x, 120);
        return inside->getValue();
    };
    // Held already when the button goes down. Kept: the first movement still counts in full.
    holdShift(true);
    press(120, 120);
    EXPECT_EQ(inside->getCoefficient(), 0.005);
    EXPECT_NEAR(valueAt(122), 0.01, 1e-12);
    EXPECT_NEAR(valueAt(142), 0.02, 1e-12);
    holdShift(false);
    EXPECT_NEAR(valueAt(142), 0.02, 1e-12);
    EXPECT_NEAR(valueAt(162), 0.12, 1e-12);
    event.setModifiers(true, false, true);  // the other keys change nothing
    EXPECT_NEAR(valueAt(170), 0.16, 1e-12);
    holdShift(true);
    EXPECT_NEAR(valueAt(170), 0.16, 1e-12);
    EXPECT_NEAR(valueAt(190), 0.17, 1e-12);
    release(190, 120);
    EXPECT_NEAR(valueAt(500), 0.17, 1e-12);
    holdShift(false);
    press(120, 120);
    EXPECT_NEAR(valueAt(130), 0.22, 1e-12);
}

TEST_F(CKnobDrag, ComesBackOnlyAfterThePointerHasPassedTheEndAgain) {
    knob->setValue(0.9);
    press(20, 20);
    move(60, 20);
    EXPECT_EQ(knob->getValue(), 1.0);
    actions.take();
    move(80, 20);
    move(41, 20);
    EXPECT_EQ(knob->getValue(), 1.0);
    EXPECT_THAT(actions.take(), IsEmpty());
    move(39, 20);
    EXPECT_THAT(actions.take(), ElementsAre(near(0.995)));
}

TEST_F(CKnobDrag, StopsAtZeroExactly) {
    knob->setValue(0.3);
    press(20, 20);
    move(20, 300);
    move(20, 301);
    EXPECT_THAT(actions.take(), ElementsAre(0.0));
}

TEST_F(CKnobDrag, StartsAnewWithEveryPress) {
    press(20, 20);
    move(40, 20);
    release(40, 20);
    move(25, 25);
    EXPECT_NEAR(knob->getValue(), 0.1, 1e-12);
    knob->setCoefficient(0.5);
    press(25, 25);
    EXPECT_EQ(knob->getCoefficient(), 0.005);
    move(26, 25);
    EXPECT_NEAR(knob->getValue(), 0.105, 1e-12);
}

TEST_F(CKnobDrag, SurvivesTheFarthestPositions) {
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    press(20, 20);
    for (const int x : {least, most})
        for (const int y : {least, most}) {
            move(x, y);
            EXPECT_GE(knob->getValue(), 0.0);
            EXPECT_LE(knob->getValue(), 1.0);
        }
}

TEST_F(CKnobDrag, LetsItsListenerRemoveIt) {
    CActionSpy remover;
    remover.onAction = [&](const auto &action) { root.removeControl(action.getSender()); };
    knob->registerActionListener(&remover);
    press(20, 20);
    move(30, 20);
    release(30, 20);
    EXPECT_EQ(root.getControlAtIndex(0, true), nullptr);
}

TEST_F(CKnobDrag, NeedsNoListener) {
    knob->registerActionListener(nullptr);
    press(20, 20);
    move(30, 20);
    EXPECT_NEAR(knob->getValue(), 0.05, 1e-12);
}

TEST_F(CKnobWheel, StepsWhateverTheAmount) {
    knob->setValue(0.5);
    scroll(20, 20, 1.0);
    scroll(20, 20, 17.0);
    scroll(20, 20, -3.0);
    scroll(20, 20, 0.0);
    EXPECT_THAT(actions.take(), ElementsAre(near(0.525), near(0.55), near(0.525), near(0.5)));
    EXPECT_EQ(takeRedrawnAreas().size(), 4u);
}

TEST_F(CKnobWheel, StepsAQuarterAsFarWithShift) {
    knob->setValue(0.5);
    holdShift(true);
    scroll(20, 20, 1.0);
    scroll(20, 20, -1.0);
    EXPECT_THAT(actions.take(), ElementsAre(near(0.50625), near(0.5)));
}

TEST_F(CKnobWheel, StopsAtTheEndsAndReportsNothingThere) {
    knob->setValue(0.99);
    scroll(20, 20, 1.0);
    scroll(20, 20, 1.0);
    EXPECT_THAT(actions.take(), ElementsAre(1.0));
    knob->setValue(0.01);
    scroll(20, 20, -1.0);
    scroll(20, 20, -1.0);
    EXPECT_THAT(actions.take(), ElementsAre(0.0));
    EXPECT_EQ(takeRedrawnAreas().size(), 2u);
}

TEST_F(CKnobDrag, GoesToItsDefaultAtADoubleClickAndAlwaysReports) {
    doubleClick(20, 20);
    doubleClick(20, 20);
    EXPECT_THAT(actions.take(), ElementsAre(0.5, 0.5));
    EXPECT_EQ(takeRedrawnAreas().size(), 2u);
    knob->setDefaultValue(0.25);
    doubleClick(20, 20);
    EXPECT_THAT(actions.take(), ElementsAre(0.25));
    move(30, 20);
    EXPECT_FALSE(knob->isDragging());
    EXPECT_EQ(knob->getValue(), 0.25);
}

TEST_F(CKnobProperties, AreListedAfterThoseOfAnimations) {
    EXPECT_THAT(listOwnProperties(*knob),
                ElementsAre("Invert: 3", "Primary Image: 1", "Default Value: 5", "Coefficient: 5"));
}

TEST_F(CKnobProperties, AreReadAndSetAndSurviveXml) {
    using enum EDescriptorType;
    EXPECT_TRUE(setProperty(*knob, "Default Value", Float, new CDouble(0.75)));
    EXPECT_TRUE(setProperty(*knob, "Coefficient", Float, new CDouble(0.25)));
    EXPECT_FALSE(setProperty(*knob, "Coefficient", Float, nullptr));
    EXPECT_EQ(knob->getDefaultValue(), 0.75);
    EXPECT_EQ(knob->getCoefficient(), 0.25);
    CControlDescriptor descriptor("Default Value", Float);
    EXPECT_TRUE(knob->getDescriptorValue(descriptor));
    EXPECT_EQ(descriptor.getValueAs<CDouble>()->getValue(), 0.75);
    CControlDescriptor base("Invert", Boolean);
    EXPECT_TRUE(knob->getDescriptorValue(base));

    Tessitor::IO::CXMLNode node("control", nullptr);
    knob->serialiseToXml(&node);
    EXPECT_EQ(node.getNumberOfChildren(), 16);
    auto *copy = new CKnob(&root, 0, CRect(), nullptr);
    root.addControl(copy);
    EXPECT_TRUE(copy->serialiseFromXml(&node));
    EXPECT_EQ(copy->getDefaultValue(), 0.75);
    EXPECT_EQ(copy->getCoefficient(), 0.25);
    EXPECT_EQ(copy->getUniqueId(), 4);
}

}  // namespace
