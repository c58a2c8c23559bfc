#include "toolkit/controls/CControlPanel.h"

#include "foundation/CException.h"
#include "toolkit/controls/CRootTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A panel in a panel, and a control in it that lies at 35, 45 in the window.
class CControlPanelNested : public CRootTest {
protected:
    CControlPanel *outer = addPanel(root, CRect(10, 20, 200, 200));
    CControlPanel *inner = addPanel(*outer, CRect(20, 20, 100, 100));
    CSpyControl *control = add(*inner, "a", CRect(5, 5, 30, 30));
};

TEST_F(CControlPanelNested, BecomesRootAndParentOfItsControls) {
    auto *moved = new CSpyControl(&root, "b", CRect(1, 2, 3, 4), log);
    EXPECT_EQ(moved->getParentControl(), nullptr);
    inner->addControl(moved);
    inner->addControl(nullptr);
    EXPECT_EQ(moved->getControlRoot(), static_cast<IControlRoot *>(inner));
    EXPECT_EQ(moved->getParentControl(), static_cast<IControl *>(inner));
    EXPECT_EQ(textOf(moved->getAbsoluteRect()), "31,42,3,4");
    EXPECT_EQ(inner->getNumberOfInsertedControls(), 2);
    EXPECT_TRUE(inner->getClass() == "CControlPanel");
    EXPECT_TRUE(inner->getClass().isTypeOf(moved->getClass()));
}

TEST_F(CControlPanelNested, NeedsAWindowAndARoot) {
    using Tessitor::Exceptions::CException;
    EXPECT_THROW(CControlPanel(nullptr, &root, 0, CRect(), nullptr), CException);
    EXPECT_THROW(CControlPanel(&window, nullptr, 0, CRect(), nullptr), CException);
}

TEST_F(CControlPanelNested, KnowsWhereItIsInTheWindow) {
    EXPECT_EQ(textOf(outer->getWindowOffset()), "10,20");
    EXPECT_EQ(textOf(inner->getWindowOffset()), "30,40");
    EXPECT_EQ(textOf(control->getAbsoluteRect()), "35,45,30,30");
    EXPECT_EQ(textOf(control->getArea()), "5,5,30,30");
}

TEST_F(CControlPanelNested, TakesItsControlsAlongWhenItMoves) {
    auto *modal = new CSpyControl(inner, "modal", CRect(1, 1, 2, 2), log);
    inner->setModalControl(modal);
    outer->setArea(CRect(-500, 0, 200, 200));
    EXPECT_EQ(textOf(inner->getAbsoluteRect()), "-480,20,100,100");
    EXPECT_EQ(textOf(control->getAbsoluteRect()), "-475,25,30,30");
    EXPECT_EQ(textOf(modal->getAbsoluteRect()), "-479,21,2,2");
    press(36, 47);
    EXPECT_THAT(takeLog(), IsEmpty());
    outer->setArea(CRect(10, 20, 200, 200));
    inner->clearModalControl();
    press(36, 47);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 1,2"));
}

TEST_F(CControlPanelNested, RedrawsItsControlsInWindowCoordinates) {
    takeRedrawnAreas();
    control->update();
    inner->update();
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("35,45,30,30", "30,40,100,100"));
}

TEST_F(CControlPanelNested, PassesMouseEventsOnWithPositionsOfItsOwn) {
    press(36, 47);
    EXPECT_EQ(textOf(mouse.getPosition()), "36,47");
    EXPECT_EQ(textOf(inner->getMousePosition()), "6,7");
    send(&IControlRoot::handleLeftButtonUp, 36, 47);
    send(&IControlRoot::handleRightButtonDown, 36, 47);
    send(&IControlRoot::handleRightButtonUp, 36, 47);
    send(&IControlRoot::handleDoubleClick, 36, 47);
    send(&IControlRoot::handleMouseMovement, 36, 47);
    send(&IControlRoot::handleMouseLeaving, 36, 47);
    double wheel = 0.0;
    control->onMouse = [&](const CMouseEvent &received) { wheel = received.getWheelAmount(); };
    event.setWheelAmount(3.0);
    send(&IControlRoot::handleMouseScroll, 36, 47);
    EXPECT_EQ(wheel, 3.0);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 1,2", "a: left up 1,2", "a: right down 1,2",
                                       "a: right up 1,2", "a: double click 1,2", "a: move 1,2",
                                       "a: leave 1,2", "a: scroll 1,2"));
}

TEST_F(CControlPanelNested, PassesKeysOnToTheControlLastUnderTheMouse) {
    move(36, 47);
    takeLog();
    EXPECT_TRUE(typeKey());
    EXPECT_TRUE(root.handleKeyUp(Tessitor::GUI::Events::CKeyboardEvent()));
    EXPECT_THAT(takeLog(), ElementsAre("a: key down", "a: key up"));
}

TEST_F(CControlPanelNested, PassesDropsDownToAControlThatAcceptsThem) {
    drop(36, 47);
    EXPECT_THAT(takeLog(), IsEmpty());
    control->setDropFileEnabled(false);
    EXPECT_FALSE(inner->isDropFileEnabled());
    control->setDropFileEnabled(true);
    EXPECT_TRUE(inner->isDropFileEnabled());
    EXPECT_TRUE(outer->isDropFileEnabled());
    drop(36, 47);
    EXPECT_THAT(takeLog(), ElementsAre("a: drop 1,2 file"));
    control->setDropFileEnabled(false);
    EXPECT_TRUE(inner->isDropFileEnabled());
}

TEST_F(CControlPanelNested, LocksTheChainOfRootsUpToTheWindow) {
    inner->lockControl(control);
    EXPECT_EQ(inner->getLockedControl(), control);
    EXPECT_EQ(outer->getLockedControl(), inner);
    EXPECT_EQ(root.getLockedControl(), outer);
    move(-5, 1000);
    EXPECT_THAT(takeLog(), ElementsAre("a: move -40,955"));
    inner->unlockControl();
    EXPECT_FALSE(inner->controlIsLocked());
    EXPECT_FALSE(outer->controlIsLocked());
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CControlPanelNested, IsUnlockedWithAllOthersFromTheTop) {
    inner->lockControl(control);
    root.unlockAll();
    EXPECT_FALSE(inner->controlIsLocked());
    EXPECT_FALSE(outer->controlIsLocked());
    EXPECT_FALSE(root.controlIsLocked());
    root.unlockAll();
}

TEST_F(CControlPanelNested, RestrictsOnlyItselfWithAModalControl) {
    CSpyControl *modal = add(*inner, "modal", CRect(50, 50, 10, 10));
    CSpyControl *outside = add(root, "outside", CRect(300, 0, 10, 10));
    inner->setModalControl(modal);
    press(36, 47);
    press(81, 92);
    press(300, 0);
    EXPECT_THAT(takeLog(), ElementsAre("modal: left down 1,2", "outside: left down 0,0"));
    root.setModalControl(outside);
    press(81, 92);
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CControlPanelNested, MayBeModalItself) {
    add(root, "outside", CRect(300, 0, 10, 10));
    root.setModalControl(outer);
    press(300, 0);
    press(36, 47);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 1,2"));
}

TEST_F(CControlPanelNested, FindsTheDeepestControlOrItself) {
    EXPECT_EQ(root.getDeepControlAtPoint({36, 47}), control);
    EXPECT_EQ(root.getDeepControlAtPoint({100, 100}), static_cast<IControl *>(inner));
    EXPECT_EQ(root.getDeepControlAtPoint({11, 21}), static_cast<IControl *>(outer));
    EXPECT_EQ(root.getDeepControlAtPoint({0, 0}), nullptr);
    EXPECT_EQ(inner->getDeepControlAtPoint({-1, 0}), static_cast<IControl *>(inner));
    EXPECT_EQ(root.getControlAtPoint({36, 47}), static_cast<IControl *>(outer));
}

TEST_F(CControlPanelNested, EnablesAndDisablesItsControls) {
    add(*inner, "removed", CRect());
    inner->removeControl(inner->getControlByDescription("removed"));
    outer->disableControl();
    EXPECT_FALSE(outer->isEnabled() || inner->isEnabled() || control->isEnabled());
    outer->enableControl();
    EXPECT_TRUE(outer->isEnabled() && inner->isEnabled() && control->isEnabled());
}

}  // namespace
