// Listeners and handlers that change what they are called from.
#include "toolkit/controls/CRootTest.h"
#include "toolkit/controls/FakeNativeTextField.h"

namespace {

using Tessitor::GUI::Controls::standardControlFactory;

/// Does everything that can be done to a control at this position.
class CControlRootReentry : public CRootTest {
protected:
    CControlRootReentry() { window.setControlRoot(&root); }

    void useMouseKeysAndDrops(int x, int y) {
        for (const MouseHandler handler :
             {&IControlRoot::handleMouseMovement, &IControlRoot::handleLeftButtonDown,
              &IControlRoot::handleMouseMovement, &IControlRoot::handleLeftButtonUp,
              &IControlRoot::handleRightButtonDown, &IControlRoot::handleRightButtonUp,
              &IControlRoot::handleDoubleClick, &IControlRoot::handleMouseScroll,
              &IControlRoot::handleMouseLeaving})
            send(handler, x, y);
        typeKey();
        drop(x, y);
    }

    CActionSpy listener;
};

class CControlRootReentryOfClass : public CControlRootReentry,
                                   public testing::WithParamInterface<const char *> {
protected:
    /// A control of the class under test that reports to the listener.
    IControl *make(IControlRoot &to) {
        IControl *control = standardControlFactory().createControl(GetParam(), &to);
        to.addControl(control);
        control->setArea(CRect(0, 0, 40, 30));
        control->setMouseEnabled(true);
        control->setDropFileEnabled(true);
        control->setValue(0.3);
        control->registerActionListener(&listener);
        return control;
    }
    /// Ends the editing of a text, which is not reported in any other way.
    static void endEditing() {
        if (fakeNativeTextField().isOpen)
            fakeNativeTextField().end(ENativeTextFieldEnd::ReturnKey);
    }
};

TEST_P(CControlRootReentryOfClass, MayBeRemovedByItsOwnListener) {
    int calls = 0;
    listener.onAction = [&](const auto &) {
        ++calls;
        root.clearControls();
        root.unlockControl();
    };
    for (const MouseHandler first :
         {&IControlRoot::handleLeftButtonDown, &IControlRoot::handleLeftButtonUp,
          &IControlRoot::handleDoubleClick, &IControlRoot::handleMouseScroll}) {
        make(root);
        send(first, 20, 25);
        move(30, 20);
        endEditing();
        drop(20, 25);
        release(100, 100);
        root.clearControls();  // not everything is reported by every class
        root.unlockControl();
    }
    EXPECT_GT(calls, 0);
    add(root, "b", CRect(0, 0, 40, 30));
    move(5, 5);  // lets go of the control that had the keys
    EXPECT_EQ(log.size(), 1u);
}

TEST_P(CControlRootReentryOfClass, MayBeRemovedWithItsPanelByItsOwnListener) {
    int calls = 0;
    listener.onAction = [&](const auto &) {
        ++calls;
        root.clearControls();
        root.clearModalControl();
        root.unlockControl();
    };
    for (const MouseHandler first :
         {&IControlRoot::handleLeftButtonDown, &IControlRoot::handleLeftButtonUp,
          &IControlRoot::handleDoubleClick, &IControlRoot::handleMouseScroll}) {
        CControlPanel *panel = addPanel(root, CRect(0, 0, 50, 50));
        make(*panel);
        root.setModalControl(panel);
        send(first, 20, 25);
        move(30, 20);
        endEditing();
        drop(20, 25);
        root.clearModalControl();
        release(100, 100);
        root.clearControls();
        root.unlockControl();
    }
    EXPECT_GT(calls, 0);
    add(root, "b", CRect(0, 0, 40, 30));
    move(5, 5);
    EXPECT_EQ(log.size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Reporting, CControlRootReentryOfClass,
                         testing::Values("CClickableKnob", "CClickableLabel", "CImageLabel",
                                         "CKnob", "CLatchingButton", "CMomentaryButton", "CSlider",
                                         "CSliderArray", "CTextEdit"),
                         [](const auto &test) { return std::string(test.param); });

TEST_F(CControlRootReentry, KeepsAPanelAliveWhoseLastReferenceIsDroppedInAnAction) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CControlPanel *panel = addPanel(root, CRect(10, 10, 50, 50));
    auto *control = new CSpyControl(panel, "a", CRect(0, 0, 20, 20), log, &listener);
    panel->addControl(control);
    control->isDestroyed = isDestroyed;
    add(root, "other", CRect(100, 100, 10, 10));
    move(15, 15);
    root.setModalControl(panel);
    panel->lockControl(control);
    panel->setModalControl(control);
    control->onMouse = [&](CMouseEvent &received) {
        control->onMouse = nullptr;
        control->sendActionEvent(received);
        EXPECT_EQ(textOf(root.getMousePosition()), "105,105");
    };
    listener.onAction = [&](const auto &) {
        panel->unlockControl();
        root.clearModalControl();
        root.clearControls();
        add(root, "other", CRect(100, 100, 10, 10));
        move(105, 105);  // the panel is no longer the last under the mouse, either
        EXPECT_FALSE(*isDestroyed);
    };
    press(15, 15);
    EXPECT_FALSE(*isDestroyed);  // it has the keys again
    move(105, 105);
    EXPECT_TRUE(*isDestroyed);
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CControlRootReentry, DestroysAPanelRightAfterTheKeyThatDropsItsLastReference) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CControlPanel *panel = addPanel(root, CRect(10, 10, 50, 50));
    auto *control = new CSpyControl(panel, "a", CRect(0, 0, 20, 20), log, &listener);
    panel->addControl(control);
    control->isDestroyed = isDestroyed;
    panel->lockControl(control);
    control->onKey = [&] {
        control->sendActionEvent();
        EXPECT_FALSE(*isDestroyed);
        return true;
    };
    listener.onAction = [&](const auto &) {
        root.removeControl(panel);
        root.unlockControl();
    };
    EXPECT_TRUE(typeKey());
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootReentry, ClearsAllControlsInAnyHandler) {
    const auto isDestroyed = std::make_shared<bool>(false);
    const auto prepare = [&] {
        *isDestroyed = false;
        CControlPanel *panel = addPanel(root, CRect(0, 0, 50, 50));
        CSpyControl *control = add(*panel, "a", CRect(0, 0, 50, 50));
        add(*panel, "b", CRect(0, 0, 50, 50));
        add(root, "c", CRect(0, 0, 50, 50));
        control->isDestroyed = isDestroyed;
        control->setDropFileEnabled(true);
        const auto clear = [this, panel, isDestroyed] {
            panel->clearControls();
            root.clearControls();
            EXPECT_FALSE(*isDestroyed);
            EXPECT_EQ(root.getNumberOfControls(), 0);
        };
        control->onMouse = [clear](CMouseEvent &) { clear(); };
        control->onDrop = clear;
        control->onKey = [clear] {
            clear();
            return true;
        };
        return control;
    };
    prepare();
    drop(5, 5);
    EXPECT_TRUE(*isDestroyed);
    for (const MouseHandler handler :
         {&IControlRoot::handleLeftButtonDown, &IControlRoot::handleMouseScroll}) {
        prepare();
        send(handler, 5, 5);
        EXPECT_FALSE(*isDestroyed);  // it still has the keys
        add(root, "d", CRect(0, 0, 50, 50));
        move(5, 5);
        EXPECT_TRUE(*isDestroyed);
        root.clearControls();
    }
    CSpyControl *control = prepare();
    const auto clear = control->onMouse;
    control->onMouse = nullptr;
    move(5, 5);
    EXPECT_TRUE(typeKey());
    EXPECT_FALSE(*isDestroyed);
    useMouseKeysAndDrops(5, 5);
}

TEST_F(CControlRootReentry, LetsANestedMessageRemoveTheControlThatIsBeingCalled) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CControlPanel *panel = addPanel(root, CRect(10, 10, 50, 50));
    CSpyControl *outer = add(*panel, "outer", CRect(0, 0, 20, 20));
    CSpyControl *inner = add(root, "inner", CRect(100, 100, 20, 20));
    outer->isDestroyed = isDestroyed;
    inner->onMouse = [&](CMouseEvent &) {
        panel->removeControl(outer);
        root.removeControl(panel);
    };
    outer->onMouse = [&](CMouseEvent &received) {
        move(101, 102);
        EXPECT_FALSE(*isDestroyed);
        EXPECT_EQ(textOf(received.getMousePosition()), "101,102");
    };
    press(15, 15);
    EXPECT_EQ(takeLog(), (EventLog{"outer: left down 5,5", "inner: move 1,2"}));
    EXPECT_EQ(textOf(mouse.getPosition()), "101,102");
    move(105, 105);
    EXPECT_TRUE(*isDestroyed);
}

}  // namespace
