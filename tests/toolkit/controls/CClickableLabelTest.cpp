#include "toolkit/controls/CClickableLabel.h"

#include "toolkit/controls/CRootTest.h"
#include "toolkit/graphics/SCanvas.h"

namespace {

using Tessitor::GUI::Controls::CClickableLabel;
using Tessitor::GUI::Events::CActionEvent;
using testing::ElementsAre;

constexpr SNativeColour grey{208, 208, 208};

class CHighlightedLabel : public CClickableLabel {
public:
    using CClickableLabel::CClickableLabel;
    using CClickableLabel::setHighlighted;
};

class CClickableLabelTest : public CRootTest {
protected:
    CClickableLabelTest() { root.addControl(label); }

    CValueLog actions;
    SCanvas canvas;
    CHighlightedLabel *label = new CHighlightedLabel(&root, 4, CRect(10, 10, 20, 10), "", &actions);
};

TEST_F(CClickableLabelTest, IsALabelThatTakesTheMouse) {
    EXPECT_TRUE(label->isMouseEnabled());
    EXPECT_TRUE(label->isDropFileEnabled());
    EXPECT_EQ(label->getActionListener(), &actions);
    EXPECT_TRUE(label->getClass() == "CClickableLabel");
    EXPECT_TRUE(label->getClass().isTypeOf(Tessitor::Basics::CClass("CTextLabel")));
}

TEST_F(CClickableLabelTest, ReportsAPressAndNothingElse) {
    press(15, 15);
    EXPECT_THAT(actions.take(), ElementsAre(1.0));
    move(16, 15);
    release(16, 15);
    doubleClick(16, 15);
    scroll(16, 15, 1.0);
    EXPECT_THAT(actions.take(), testing::IsEmpty());
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
}

TEST_F(CClickableLabelTest, BuildsNoEventWithoutAListener) {
    label->registerActionListener(nullptr);
    const std::uint32_t before = CActionEvent(label).getClass().getTotalCount();
    press(15, 15);
    EXPECT_EQ(CActionEvent(label).getClass().getTotalCount(), before + 1);
}

TEST_F(CClickableLabelTest, IsInvisibleWithoutTextAndDefaultDrawing) {
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
}

TEST_F(CClickableLabelTest, DrawsItsHighlightOverTheDefaultDrawing) {
    label->setDefaultDrawing(true);
    label->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(5, 5), (SNativeColour{255, 255, 255}));
    label->setHighlighted(true);
    label->drawControl(canvas.graphics);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(canvas.at(x, y), grey) << x << "," << y;
    EXPECT_EQ(canvas.at(20, 5), SCanvas::background);
}

TEST_F(CClickableLabelTest, DrawsItsTextOverTheHighlight) {
    Tessitor::GUI::Fonts::CFont::createDefaultFont();
    label->setHighlighted(true);
    label->setText("M");
    label->drawControl(canvas.graphics);
    bool isTextFound = false;
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x)
            isTextFound |= canvas.at(x, y) != grey;
    EXPECT_TRUE(isTextFound);
    Tessitor::GUI::Fonts::CFont::releaseDefaultFont();
}

TEST_F(CClickableLabelTest, DrawsNothingWhileItIsDisabled) {
    label->setHighlighted(true);
    label->disableControl();
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
}

}  // namespace
