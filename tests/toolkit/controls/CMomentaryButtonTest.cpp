#include "toolkit/controls/CMomentaryButton.h"

#include "toolkit/controls/CRootTest.h"
#include "toolkit/events/CCursor.h"

namespace {

using Tessitor::GUI::Controls::CMomentaryButton;
using Tessitor::GUI::Windowing::CCursor;
using testing::ElementsAre;
using testing::IsEmpty;

class CMomentaryButtonTest : public CRootTest {
protected:
    CMomentaryButtonTest() { root.addControl(button); }

    CValueLog actions;
    CMomentaryButton *button = new CMomentaryButton(&root, 4, CRect(10, 20, 32, 16), &actions);
};

TEST_F(CMomentaryButtonTest, HasItsDefaults) {
    EXPECT_EQ(button->getValue(), 0.0);
    EXPECT_FALSE(button->isDown());
    EXPECT_TRUE(button->isMouseEnabled());
    EXPECT_TRUE(button->getClass() == "CMomentaryButton");
    EXPECT_TRUE(button->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CMomentaryButtonTest, ShowsDownForExactlyOne) {
    button->setValue(0.9);
    EXPECT_FALSE(button->isDown());
    button->setValue(1.0);
    EXPECT_TRUE(button->isDown());
    button->setValue(1.1);
    EXPECT_FALSE(button->isDown());
    EXPECT_EQ(takeRedrawnAreas().size(), 3u);
}

TEST_F(CMomentaryButtonTest, IsDownWhilePressedAndReportsItsRelease) {
    press(20, 30);
    EXPECT_TRUE(button->isDown());
    EXPECT_EQ(root.getLockedControl(), button);
    EXPECT_EQ(mouse.getCursor(), CCursor::getHandCursor());
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("10,20,32,16"));
    EXPECT_THAT(actions.take(), IsEmpty());
    release(20, 30);
    EXPECT_FALSE(button->isDown());
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("10,20,32,16"));
    EXPECT_THAT(actions.take(), ElementsAre(0.0));
}

TEST_F(CMomentaryButtonTest, ReportsEvenWhenItIsReleasedOutside) {
    press(20, 30);
    release(0, 0);
    EXPECT_THAT(actions.take(), ElementsAre(0.0));
    EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
}

TEST_F(CMomentaryButtonTest, GoesUpWhenTheMouseLeavesIt) {
    press(20, 30);
    move(25, 30);
    EXPECT_TRUE(button->isDown());
    takeRedrawnAreas();
    move(50, 30);
    EXPECT_FALSE(button->isDown());
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("10,20,32,16"));
    EXPECT_THAT(actions.take(), IsEmpty());
}

TEST_F(CMomentaryButtonTest, NeedsNoListener) {
    button->registerActionListener(nullptr);
    press(20, 30);
    release(20, 30);
    EXPECT_FALSE(button->isDown());
}

}  // namespace
