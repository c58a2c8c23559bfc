#include "Allocation.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/events/CActionEvent.h"

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CControlRootEvents : public CRootTest {};

TEST_F(CControlRootEvents, HandsEveryMouseEventToTheControlAtThePoint) {
    add(root, "a", CRect(10, 20, 30, 40));
    send(&IControlRoot::handleLeftButtonDown, 11, 22);
    send(&IControlRoot::handleLeftButtonUp, 12, 22);
    send(&IControlRoot::handleRightButtonDown, 13, 22);
    send(&IControlRoot::handleRightButtonUp, 14, 22);
    send(&IControlRoot::handleDoubleClick, 15, 22);
    send(&IControlRoot::handleMouseScroll, 16, 22);
    send(&IControlRoot::handleMouseMovement, 17, 22);
    send(&IControlRoot::handleMouseLeaving, 18, 22);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 1,2", "a: left up 2,2", "a: right down 3,2",
                                       "a: right up 4,2", "a: double click 5,2", "a: scroll 6,2",
                                       "a: move 7,2", "a: leave 8,2"));
}

TEST_F(CControlRootEvents, HitsOnePixelPastWidthAndHeight) {
    add(root, "a", CRect(10, 20, 30, 40));
    press(40, 60);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 30,40"));
    press(10, 20);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 0,0"));
    for (const auto &[x, y] : {std::pair(41, 30), {20, 61}, {9, 30}, {20, 19}})
        press(x, y);
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CControlRootEvents, GivesTheClickToTheFirstOfTwoOverlappingControls) {
    add(root, "first", CRect(0, 0, 20, 20));
    add(root, "second", CRect(10, 10, 20, 20));
    press(15, 15);
    press(25, 25);
    EXPECT_THAT(takeLog(), ElementsAre("first: left down 15,15", "second: left down 15,15"));
}

TEST_F(CControlRootEvents, PassesOverControlsThatTakeNoMouseEvents) {
    add(root, "first", CRect(0, 0, 20, 20))->setMouseEnabled(false);
    add(root, "second", CRect(0, 0, 20, 20));
    press(5, 5);
    EXPECT_THAT(takeLog(), ElementsAre("second: left down 5,5"));
}

TEST_F(CControlRootEvents, StillReachesADisabledControl) {
    add(root, "a", CRect(0, 0, 20, 20))->disableControl();
    press(5, 5);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 5,5"));
}

TEST_F(CControlRootEvents, PutsThePositionOfTheMouseBack) {
    add(root, "a", CRect(10, 20, 30, 40));
    press(15, 25);
    EXPECT_EQ(textOf(mouse.getPosition()), "15,25");
    EXPECT_EQ(textOf(root.getMousePosition()), "15,25");
    press(1, 2);
    EXPECT_EQ(textOf(mouse.getPosition()), "1,2");
    EXPECT_EQ(textOf(root.getMousePosition()), "1,2");
}

TEST_F(CControlRootEvents, CopiesModifiersTypeAndMouse) {
    CSpyControl *control = add(root, "a", CRect(0, 0, 20, 20));
    int calls = 0;
    control->onMouse = [&](const CMouseEvent &received) {
        ++calls;
        EXPECT_NE(&received, &event);
        EXPECT_EQ(received.getMouse(), &mouse);
        EXPECT_EQ(received.getType(), event.getType());
        EXPECT_EQ(received.isControlDown(), event.isControlDown());
        EXPECT_EQ(received.isShiftDown(), event.isShiftDown());
        EXPECT_EQ(received.isAltDown(), event.isAltDown());
    };
    event.setType(Tessitor::GUI::Events::EMouseEventType::RightUp);
    event.setModifiers(true, false, false);
    press(1, 1);
    event.setModifiers(false, true, false);
    press(1, 1);
    event.setModifiers(false, false, true);
    press(1, 1);
    EXPECT_EQ(calls, 3);
}

TEST_F(CControlRootEvents, CopiesTheWheelAmountOfScrollingOnly) {
    CSpyControl *control = add(root, "a", CRect(0, 0, 20, 20));
    std::vector<double> amounts;
    control->onMouse = [&](const CMouseEvent &received) {
        amounts.push_back(received.getWheelAmount());
    };
    event.setWheelAmount(-1.5);
    send(&IControlRoot::handleMouseScroll, 1, 1);
    event.setWheelAmount(7.0);
    press(1, 1);
    EXPECT_THAT(amounts, ElementsAre(-1.5, -1.5));
}

TEST_F(CControlRootEvents, ForgetsTheWheelAmountThatHitsNothing) {
    CSpyControl *control = add(root, "a", CRect(0, 0, 20, 20));
    double amount = -1.0;
    control->onMouse = [&](const CMouseEvent &received) { amount = received.getWheelAmount(); };
    scroll(100, 100, 2.0);
    press(1, 1);
    EXPECT_EQ(amount, 0.0);
    scroll(1, 1, 3.0);
    EXPECT_EQ(amount, 3.0);
}

TEST_F(CControlRootEvents, SendsEverythingToTheLockedControl) {
    CSpyControl *control = add(root, "locked", CRect(10, 10, 10, 10));
    add(root, "other", CRect(50, 50, 10, 10));
    root.lockControl(control);
    EXPECT_TRUE(root.controlIsLocked());
    move(55, 55);
    move(-100, 3000);
    EXPECT_THAT(takeLog(), ElementsAre("locked: move 45,45", "locked: move -110,2990"));
    root.unlockControl();
    EXPECT_FALSE(root.controlIsLocked());
    move(55, 55);
    EXPECT_THAT(takeLog(), ElementsAre("other: move 5,5"));
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
}

TEST_F(CControlRootEvents, ReplacesALock) {
    CSpyControl *first = add(root, "first", CRect(0, 0, 10, 10));
    CSpyControl *second = add(root, "second", CRect(20, 0, 10, 10));
    root.lockControl(first);
    root.lockControl(first);
    EXPECT_EQ(first->getReferenceCount(), 2);
    root.lockControl(second);
    EXPECT_EQ(root.getLockedControl(), second);
    EXPECT_EQ(first->getReferenceCount(), 1);
}

TEST_F(CControlRootEvents, SendsNothingPastAModalControl) {
    CSpyControl *modal = add(root, "modal", CRect(10, 10, 10, 10));
    CSpyControl *locked = add(root, "locked", CRect(50, 50, 10, 10));
    root.lockControl(locked);
    root.setModalControl(modal);
    press(55, 55);
    EXPECT_THAT(takeLog(), IsEmpty());
    press(20, 20);
    EXPECT_THAT(takeLog(), ElementsAre("modal: left down 10,10"));
    modal->setMouseEnabled(false);
    press(15, 15);
    EXPECT_THAT(takeLog(), IsEmpty());
    root.clearModalControl();
    press(15, 15);
    EXPECT_THAT(takeLog(), ElementsAre("locked: left down -35,-35"));
}

TEST_F(CControlRootEvents, SendsKeysToTheControlLastUnderTheMouse) {
    EXPECT_FALSE(typeKey());
    add(root, "a", CRect(0, 0, 10, 10));
    add(root, "b", CRect(20, 0, 10, 10))->onKey = [] { return false; };
    EXPECT_FALSE(typeKey());
    move(5, 5);
    takeLog();
    EXPECT_TRUE(typeKey());
    EXPECT_TRUE(root.handleKeyUp(Tessitor::GUI::Events::CKeyboardEvent()));
    move(25, 5);
    EXPECT_FALSE(typeKey());
    EXPECT_THAT(takeLog(), ElementsAre("a: key down", "a: key up", "b: move 5,5", "b: key down"));
}

TEST_F(CControlRootEvents, KeepsTheKeysWhereTheyAreWhenTheMouseHitsNothing) {
    add(root, "a", CRect(0, 0, 10, 10));
    move(5, 5);
    press(100, 100);
    takeLog();
    EXPECT_TRUE(typeKey());
    EXPECT_THAT(takeLog(), ElementsAre("a: key down"));
}

TEST_F(CControlRootEvents, SendsKeysToTheLockedAndFirstToTheModalControl) {
    add(root, "last", CRect(0, 0, 10, 10));
    CSpyControl *locked = add(root, "locked", CRect(20, 0, 10, 10));
    CSpyControl *modal = add(root, "modal", CRect(40, 0, 10, 10));
    move(5, 5);
    takeLog();
    root.lockControl(locked);
    EXPECT_TRUE(typeKey());
    root.setModalControl(modal);
    EXPECT_FALSE(typeKey());
    EXPECT_THAT(takeLog(), ElementsAre("locked: key down", "modal: key down"));
}

TEST_F(CControlRootEvents, SendsDropsToTheFirstControlThatAcceptsThem) {
    add(root, "first", CRect(10, 10, 20, 20));
    add(root, "second", CRect(10, 10, 20, 20))->setDropFileEnabled(true);
    drop(12, 15);
    drop(100, 100);
    EXPECT_THAT(takeLog(), ElementsAre("second: drop 2,5 file"));
}

TEST_F(CControlRootEvents, SendsDropsPastAModalControlThatDoesNotTakeThem) {
    CSpyControl *modal = add(root, "modal", CRect(0, 0, 5, 5));
    add(root, "other", CRect(0, 0, 20, 20))->setDropFileEnabled(true);
    root.setModalControl(modal);
    drop(1, 2);
    drop(10, 10);
    modal->setDropFileEnabled(true);
    drop(1, 2);
    EXPECT_THAT(takeLog(), ElementsAre("other: drop 1,2 file", "other: drop 10,10 file",
                                       "modal: drop 1,2 file"));
}

TEST_F(CControlRootEvents, PrefersTheModalControlForDrops) {
    add(root, "first", CRect(0, 0, 20, 20))->setDropFileEnabled(true);
    CSpyControl *modal = add(root, "modal", CRect(0, 0, 20, 20));
    modal->setDropFileEnabled(true);
    root.setModalControl(modal);
    drop(1, 2);
    EXPECT_THAT(takeLog(), ElementsAre("modal: drop 1,2 file"));
}

TEST_F(CControlRootEvents, AllocatesNothingWhenTheMouseMoves) {
    CControlPanel *panel = addPanel(root, CRect(10, 10, 100, 100));
    auto *control = new Tessitor::GUI::Controls::CControl(panel, 1, CRect(5, 5, 50, 50), nullptr);
    panel->addControl(control);
    move(20, 20);
    const auto before = allocationsOfThisThread();
    for (int x = 0; x < 120; ++x)
        move(x, 20);
    EXPECT_EQ(allocationsOfThisThread(), before);
}

TEST_F(CControlRootEvents, AllocatesNothingWhenTheMouseMovesOverAHundredControls) {
    using Tessitor::GUI::Controls::CControl;
    CControlPanel *panel = addPanel(root, CRect(0, 0, 600, 600));
    for (int i = 0; i < 50; ++i) {
        panel->addControl(new CControl(panel, i, CRect(i * 10, 0, 8, 30), nullptr));
        root.addControl(new CControl(&root, i, CRect(600 + i * 10, 0, 8, 30), nullptr));
    }
    move(1, 20);
    const auto before = allocationsOfThisThread();
    for (int x = 0; x < 1200; ++x)
        move(x, x % 40);
    EXPECT_EQ(allocationsOfThisThread(), before);
}

// Handlers that change what they are called from

TEST_F(CControlRootEvents, KeepsAControlAliveWhileItsListenerRemovesIt) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CSpyControl *control = add(root, "a", CRect(0, 0, 10, 10));
    control->isDestroyed = isDestroyed;
    control->onMouse = [&](CMouseEvent &) {
        root.removeControl(control);
        EXPECT_FALSE(*isDestroyed);
    };
    press(5, 5);
    EXPECT_EQ(root.getControlAtPoint({5, 5}), nullptr);
    add(root, "b", CRect(0, 0, 10, 10));
    EXPECT_FALSE(*isDestroyed);  // it still has the keys
    move(5, 5);
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootEvents, LetsAListenerRemoveThePanelThatItIsCalledFrom) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CControlPanel *outer = addPanel(root, CRect(10, 10, 100, 100));
    CControlPanel *inner = addPanel(*outer, CRect(10, 10, 50, 50));
    CActionSpy listener;
    auto *control = new CSpyControl(inner, "a", CRect(0, 0, 20, 20), log, &listener);
    inner->addControl(control);
    control->isDestroyed = isDestroyed;
    control->onMouse = [&](const CMouseEvent &received) {
        inner->lockControl(control);
        control->sendActionEvent(received);
        inner->unlockControl();
    };
    listener.onAction = [&](const Tessitor::GUI::Events::CActionEvent &) {
        inner->clearControls();
        outer->removeControl(inner);
        root.removeControl(outer);
    };
    press(25, 25);
    EXPECT_EQ(textOf(mouse.getPosition()), "25,25");
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_FALSE(*isDestroyed);
    add(root, "b", CRect(0, 0, 50, 50));
    press(25, 25);
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootEvents, UnlocksAPanelThatOnlyTheLockKeepsAlive) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CControlPanel *panel = addPanel(root, CRect(10, 10, 50, 50));
    CSpyControl *control = add(*panel, "a", CRect(0, 0, 20, 20));
    control->isDestroyed = isDestroyed;
    panel->lockControl(control);
    root.removeControl(panel);
    panel->unlockControl();
    EXPECT_TRUE(*isDestroyed);
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CControlRootEvents, KeepsAControlAliveThatIsRemovedByAKeyOrADrop) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CSpyControl *control = add(root, "a", CRect(0, 0, 10, 10));
    control->setDropFileEnabled(true);
    control->isDestroyed = isDestroyed;
    root.lockControl(control);
    control->onKey = [&] {
        root.removeControl(control);
        root.unlockControl();
        EXPECT_FALSE(*isDestroyed);
        return true;
    };
    EXPECT_TRUE(typeKey());
    EXPECT_TRUE(*isDestroyed);

    *isDestroyed = false;
    control = add(root, "a", CRect(0, 0, 10, 10));
    control->setDropFileEnabled(true);
    control->isDestroyed = isDestroyed;
    control->onDrop = [&] {
        root.removeControl(control);
        EXPECT_FALSE(*isDestroyed);
    };
    drop(5, 5);
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootEvents, KeepsAModalControlAliveWhileItClosesItself) {
    const auto isDestroyed = std::make_shared<bool>(false);
    auto *modal = new CSpyControl(&root, "modal", CRect(0, 0, 10, 10), log);
    modal->isDestroyed = isDestroyed;
    root.setModalControl(modal);
    modal->onKey = [&] {
        root.clearModalControl();
        EXPECT_FALSE(*isDestroyed);
        return true;
    };
    EXPECT_FALSE(typeKey());
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootEvents, AllowsAnotherMessageDuringAHandler) {
    CControlPanel *panel = addPanel(root, CRect(10, 10, 50, 50));
    CSpyControl *control = add(*panel, "a", CRect(0, 0, 20, 20));
    CSpyControl *other = add(root, "b", CRect(100, 100, 50, 50));
    control->onMouse = [&](CMouseEvent &) {
        control->onMouse = nullptr;
        move(103, 104);
    };
    press(15, 15);
    EXPECT_THAT(takeLog(), ElementsAre("a: left down 5,5", "b: move 3,4"));
    EXPECT_EQ(textOf(mouse.getPosition()), "103,104");
    other->setDescription("c");
    move(103, 104);
    EXPECT_THAT(takeLog(), ElementsAre("c: move 3,4"));
}

TEST_F(CControlRootEvents, ReleasesTheControlWhenAHandlerThrows) {
    CSpyControl *control = add(root, "a", CRect(0, 0, 10, 10));
    control->onMouse = [](CMouseEvent &) { throw std::runtime_error("handler"); };
    EXPECT_THROW(press(5, 5), std::runtime_error);
    EXPECT_EQ(control->getReferenceCount(), 1);
}

}  // namespace
