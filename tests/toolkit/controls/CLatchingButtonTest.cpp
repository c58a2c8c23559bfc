#include "toolkit/controls/CLatchingButton.h"

#include "toolkit/controls/CRootTest.h"
#include "toolkit/events/CCursor.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TestImage.h"

namespace {

using Tessitor::GUI::Controls::CLatchingButton;
using Tessitor::GUI::Controls::SButtonColours;
using Tessitor::GUI::Windowing::CCursor;
using testing::DoubleEq;
using testing::ElementsAre;

constexpr SNativeColour green{102, 200, 85}, red{243, 32, 32}, black{0, 0, 0};

class CLatchingButtonTest : public CRootTest {
protected:
    CLatchingButtonTest() { root.addControl(button); }

    void draw() { button->drawControl(canvas.graphics); }

    CValueLog actions;
    SCanvas canvas{false};
    CLatchingButton *button = new CLatchingButton(&root, 4, CRect(10, 20, 32, 16), &actions);
};

TEST_F(CLatchingButtonTest, HasItsDefaults) {
    EXPECT_EQ(button->getValue(), 0.0);
    EXPECT_FALSE(button->isDown());
    EXPECT_EQ(button->getDownImage(), nullptr);
    EXPECT_TRUE(button->isMouseEnabled());
    EXPECT_EQ(button->getActionListener(), &actions);
    EXPECT_TRUE(button->getClass() == "CLatchingButton");
    EXPECT_TRUE(button->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CLatchingButtonTest, IsDownFromAHalfOn) {
    button->setValue(0.5);
    EXPECT_TRUE(button->isDown());
    button->setValue(0.49);
    EXPECT_FALSE(button->isDown());
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
}

TEST_F(CLatchingButtonTest, SwitchesWhenItIsReleased) {
    button->setValue(0.49);
    press(20, 30);
    EXPECT_EQ(root.getLockedControl(), button);
    EXPECT_THAT(actions.take(), testing::IsEmpty());
    release(20, 30);
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_THAT(actions.take(), ElementsAre(DoubleEq(0.51)));
    EXPECT_TRUE(button->isDown());
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("10,20,32,16"));
    press(20, 30);
    release(20, 30);
    EXPECT_FALSE(button->isDown());
}

TEST_F(CLatchingButtonTest, SwitchesEvenWhenItIsReleasedOutside) {
    press(20, 30);
    release(0, 0);
    EXPECT_THAT(actions.take(), ElementsAre(1.0));
    EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CLatchingButtonTest, ShowsTheHandWhileTheMouseIsOverIt) {
    move(9, 30);
    EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
    for (const CPoint &inside : {CPoint(10, 20), CPoint(42, 36)}) {
        move(inside.getXPosition(), inside.getYPosition());
        EXPECT_EQ(mouse.getCursor(), CCursor::getHandCursor());
        EXPECT_EQ(root.getLockedControl(), button);
        move(43, 36);
        EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
        EXPECT_FALSE(root.controlIsLocked());
    }
    press(20, 30);
    EXPECT_EQ(mouse.getCursor(), CCursor::getHandCursor());
    release(20, 30);
    EXPECT_EQ(mouse.getCursor(), CCursor::getHandCursor());
}

TEST_F(CLatchingButtonTest, LeavesTheCursorAloneIfAsked) {
    button->setUseHandCursor(false);
    move(20, 30);
    press(20, 30);
    EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
    EXPECT_FALSE(root.controlIsLocked());
    release(20, 30);
    EXPECT_THAT(actions.take(), ElementsAre(1.0));
}

TEST_F(CLatchingButtonTest, SurvivesAnEventWithoutAMouse) {
    CMouseEvent empty;
    button->handleLeftButtonDown(empty);
    button->handleMouseMovement(empty);
    button->handleLeftButtonUp(empty);
    EXPECT_EQ(button->getValue(), 1.0);
}

TEST_F(CLatchingButtonTest, DrawsARoundedRectangleInTheColoursOfItsPosition) {
    draw();
    EXPECT_EQ(canvas.at(16, 8), red);
    EXPECT_EQ(canvas.at(16, 0), black);
    EXPECT_EQ(canvas.at(0, 8), black);
    EXPECT_EQ(canvas.at(32, 8), SCanvas::background);
    button->setValue(1.0);
    draw();
    EXPECT_EQ(canvas.at(16, 8), green);
    button->setColours({{1, 2, 3}, {4, 5, 6}, {}}, {{7, 8, 9}, {10, 11, 12}, {}});
    draw();
    EXPECT_EQ(canvas.at(16, 8), (SNativeColour{1, 2, 3}));
    EXPECT_EQ(canvas.at(16, 0), (SNativeColour{4, 5, 6}));
    button->setValue(0.0);
    draw();
    EXPECT_EQ(canvas.at(16, 8), (SNativeColour{7, 8, 9}));
    EXPECT_EQ(canvas.at(16, 0), (SNativeColour{10, 11, 12}));
}

TEST_F(CLatchingButtonTest, RoundsItsCornersByASixteenthOfItsWidth) {
    button->setArea(CRect(0, 0, 160, 30));  // corners of 10 pixels, so a radius of 5
    draw();
    EXPECT_EQ(canvas.at(0, 0), SCanvas::background);
    EXPECT_EQ(canvas.at(1, 0), SCanvas::background);
    EXPECT_EQ(canvas.at(0, 1), SCanvas::background);
    EXPECT_EQ(canvas.at(5, 0), black);
    EXPECT_EQ(canvas.at(0, 5), black);
    SCanvas expected(false);
    expected.graphics.getBrush().setColour({243, 32, 32});
    expected.graphics.fillRoundedRectangle(button->getNormalisedArea(), {10, 10});
    expected.graphics.drawRoundedRectangle(button->getNormalisedArea(), {10, 10});
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(canvas.at(x, y), expected.at(x, y)) << x << "," << y;
}

TEST_F(CLatchingButtonTest, DrawsItsTextInTheMiddleInTheColourOfItsPosition) {
    Tessitor::GUI::Fonts::CFont::createDefaultFont();
    button->setText("M");
    button->setColours({{0, 0, 0}, {0, 0, 0}, {255, 0, 0}}, {{0, 0, 0}, {0, 0, 0}, {0, 255, 0}});
    const auto brightest = [this](std::uint8_t SNativeColour::*channel) {
        int value = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 8; x < 24; ++x)
                value = std::max<int>(value, canvas.at(x, y).*channel);
        return value;
    };
    draw();
    EXPECT_GT(brightest(&SNativeColour::green), 100);
    EXPECT_EQ(brightest(&SNativeColour::red), 0);
    button->setValue(1.0);
    draw();
    EXPECT_GT(brightest(&SNativeColour::red), 100);
    EXPECT_EQ(brightest(&SNativeColour::green), 0);
    Tessitor::GUI::Fonts::CFont::releaseDefaultFont();
}

TEST_F(CLatchingButtonTest, DrawsTheImageOfItsPosition) {
    auto *image = new CTestImage(32, 16, false);
    button->setDownImage(image);
    EXPECT_EQ(image->getReferenceCount(), 1);
    draw();
    EXPECT_EQ(canvas.at(16, 8), red);
    button->setValue(1.0);
    draw();
    EXPECT_EQ(canvas.at(16, 8), CTestImage::opaqueColourAt(16, 8));
    button->setPrimaryImage(image);
    button->setDownImage(nullptr);
    draw();
    EXPECT_EQ(canvas.at(16, 8), green);
    button->setValue(0.0);
    draw();
    EXPECT_EQ(canvas.at(16, 8), CTestImage::opaqueColourAt(16, 8));
}

TEST_F(CLatchingButtonTest, DrawsNothingButItsDisabledImageWhileItIsDisabled) {
    button->disableControl();
    draw();
    EXPECT_TRUE(canvas.isBlank());
}

}  // namespace
