#include "toolkit/windowing/CVstWindow.h"

#include "CTestEditor.h"
#include "foundation/CException.h"
#include "hostlayer/ProbeEffect.h"

namespace {

using Tessitor::Exceptions::CException;
using Tessitor::GUI::Events::CKeyboardEvent;
using Tessitor::MathTools::CRect;
using testing::ElementsAre;
using testing::IsEmpty;

class CVstWindow : public testing::Test {
protected:
    CVstWindow() { fakeNatives() = SFakeNatives(); }
    static EventLog takeLog() { return fakeNatives().takeLog(); }

    CTestEditor editor{nullptr};
    int host = 0, otherHost = 0;
};

TEST_F(CVstWindow, TellsItsSizeOpenOrNot) {
    ERect *rect = nullptr;
    EXPECT_TRUE(editor.getRect(&rect));
    EXPECT_EQ(rect->top, 0);
    EXPECT_EQ(rect->left, 0);
    EXPECT_EQ(rect->bottom, 370);
    EXPECT_EQ(rect->right, 748);
}

TEST_F(CVstWindow, OpensAVisibleChildOfTheHostsWindow) {
    EXPECT_TRUE(editor.open(&host));
    EXPECT_THAT(takeLog(), ElementsAre("create", "hook", "alpha 255", "show", "update"));
    EXPECT_EQ(fakeNatives().lastOptions.parent, &host);
    EXPECT_EQ(fakeNatives().lastOptions.title, "Editor");
    EXPECT_EQ(fakeNatives().lastOptions.style, 0x50000000u);
    EXPECT_EQ(fakeNatives().lastOptions.extendedStyle, 16u);
    EXPECT_EQ(fakeNatives().lastOptions.bounds.right, 748);
    EXPECT_TRUE(editor.isOpen());
    EXPECT_EQ(editor.getParentWindow()->getWindowHandle()->native, &host);
    EXPECT_EQ(editor.getParentWindow()->getWindowRect().getWidth(), 10);
}

TEST_F(CVstWindow, ClosesItsOwnWindowOnly) {
    editor.open(&host);
    takeLog();
    editor.close();
    EXPECT_THAT(takeLog(), ElementsAre("unhook", "destroy"));
    EXPECT_FALSE(editor.isOpen());
    EXPECT_EQ(editor.getParentWindow(), nullptr);
    EXPECT_EQ(editor.getWindowHandle()->native, nullptr);
    editor.close();
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CVstWindow, BelongsToItsEffect) {
    ProbeEffect effect;
    auto *owned = new CTestEditor(&effect);
    EXPECT_EQ(effect.getEditor(), owned);
    constexpr int open = 14, close = 15;
    EXPECT_EQ(effect.call(open, 0, 0, &host), 1);
    EXPECT_EQ(fakeNatives().lastOptions.parent, &host);
    effect.call(close);
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(CVstWindow, CanBeOpenedAgain) {
    editor.open(&host);
    editor.close();
    editor.open(&otherHost);
    EXPECT_EQ(fakeNatives().lastOptions.parent, &otherHost);
    EXPECT_EQ(fakeNatives().windows.size(), 1u);
}

TEST_F(CVstWindow, MovesToAnotherParentWithoutBeingClosed) {
    editor.open(&host);
    editor.open(&otherHost);
    EXPECT_EQ(fakeNatives().lastOptions.parent, &otherHost);
    EXPECT_EQ(fakeNatives().windows.size(), 1u);
}

TEST_F(CVstWindow, ANullParentThrowsBeforeAnythingChanges) {
    editor.open(&host);
    takeLog();
    try {
        editor.open(nullptr);
        FAIL() << "nothing was thrown";
    } catch (const CException &thrown) {
        EXPECT_STREQ(thrown.getErrorReason().getString(), "Parent window handle is NULL");
        EXPECT_STREQ(thrown.getFunctionName().getString(), "CVSTPanel::open(void *)");
    }
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_TRUE(editor.isOpen());
    EXPECT_EQ(editor.getParentWindow()->getWindowHandle()->native, &host);
}

TEST_F(CVstWindow, IsClosedIfTheSystemRefusesItsWindow) {
    fakeNatives().refusesWindows = true;
    fakeNatives().reason = "No display";
    try {
        editor.open(&host);
        FAIL() << "nothing was thrown";
    } catch (const CException &thrown) {
        EXPECT_STREQ(thrown.getErrorReason().getString(),
                     "Caught an exception whilst initialising window. Further details below:\n\n"
                     "No display\n\nCWindow::createWindow()");
    }
    EXPECT_FALSE(editor.isOpen());
    EXPECT_EQ(editor.getParentWindow(), nullptr);
    fakeNatives().refusesWindows = false;
    EXPECT_TRUE(editor.open(&host));
}

TEST_F(CVstWindow, CanBeClosedAfterTheHostsWindowIsGone) {
    editor.open(&host);
    fakeNatives().windows.back()->listener.handleNativeDestroyed();
    takeLog();
    editor.close();
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_TRUE(editor.open(&otherHost));
}

TEST_F(CVstWindow, RedrawsNothingWhileItMakesAChange) {
    editor.open(&host);
    takeLog();
    EXPECT_FALSE(editor.getIsEditing());
    editor.setIsEditing(true);
    EXPECT_TRUE(editor.getIsEditing());
    editor.redraw();
    editor.redrawWindow(CRect(1, 2, 3, 4));
    EXPECT_THAT(takeLog(), IsEmpty());
    editor.setIsEditing(false);
    editor.redraw();
    editor.redrawWindow(CRect(1, 2, 3, 4));
    EXPECT_THAT(takeLog(), ElementsAre("invalidate 0,0,748,370", "invalidate 1,2,4,6"));
}

TEST_F(CVstWindow, HandsKeysToItsRoot) {
    EXPECT_FALSE(editor.handleKeyDown(CKeyboardEvent()));
    EventLog events;
    auto *control = new CSpyControl(editor.getControlRoot(), "control", CRect(0, 0, 5, 5), events);
    editor.getControlRoot()->addControl(control);
    editor.getControlRoot()->lockControl(control);
    EXPECT_TRUE(editor.handleKeyDown(CKeyboardEvent()));
    EXPECT_TRUE(editor.handleKeyUp(CKeyboardEvent()));
    EXPECT_THAT(events, ElementsAre("control: key down", "control: key up"));
}

TEST_F(CVstWindow, ItsDestructorDestroysTheWindow) {
    {
        CTestEditor other(nullptr);
        other.open(&host);
    }
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

}  // namespace
