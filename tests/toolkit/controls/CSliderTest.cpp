#include "toolkit/controls/CSlider.h"

#include "foundation/CXMLNode.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TestImage.h"

#include <cmath>

namespace {

using Tessitor::GUI::Controls::CSlider;
using EState = CSlider::EHandleState;
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;

/// A vertical slider of 10 by 105 pixels whose handle is 5 high, so that it can move by 100.
class CSliderTest : public CRootTest {
protected:
    CSlider *make(const CRect &area) {
        auto *made = new CSlider(&root, 4, area, &actions);
        root.addControl(made);
        return made;
    }
    int top() const { return slider->getHandleArea().getTop(); }

    CValueLog actions;
    CSlider *slider = make(CRect(0, 0, 10, 105));
};

TEST_F(CSliderTest, HasItsDefaults) {
    EXPECT_EQ(slider->getValue(), 1.0);
    EXPECT_TRUE(slider->isVertical());
    EXPECT_FALSE(slider->isDragging());
    EXPECT_EQ(slider->getHandleState(), EState::Normal);
    EXPECT_EQ(slider->getRange(), 100.0);
    EXPECT_EQ(textOf(slider->getHandleArea()), "0,0,10,5");
    EXPECT_EQ(slider->getActionListener(), &actions);
    EXPECT_TRUE(slider->getClass() == "CSlider");
    EXPECT_TRUE(slider->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CSliderTest, IsHorizontalIfItIsWiderThanHigh) {
    EXPECT_TRUE(make(CRect(0, 0, 20, 20))->isVertical());
    const CSlider *wide = make(CRect(0, 0, 105, 10));
    EXPECT_FALSE(wide->isVertical());
    EXPECT_EQ(wide->getRange(), 100.0);
}

TEST_F(CSliderTest, KeepsTheOrientationOfItsFirstArea) {
    slider->setArea(CRect(0, 0, 105, 10));
    EXPECT_TRUE(slider->isVertical());
    CSlider *later = make(CRect());
    later->setArea(CRect(0, 0, 105, 10));
    EXPECT_FALSE(later->isVertical());
    EXPECT_EQ(later->getRange(), 100.0);
}

TEST_F(CSliderTest, PlacesItsHandleByItsValueWithOneAtTheTop) {
    slider->setValue(0.0);
    EXPECT_EQ(top(), 100);
    slider->setValue(1.0);
    EXPECT_EQ(top(), 0);
    slider->setValue(0.255);  // at 74.5
    EXPECT_EQ(top(), 74);
    EXPECT_EQ(takeRedrawnAreas().size(), 3u);
    EXPECT_THAT(actions.take(), IsEmpty());
    CSlider *wide = make(CRect(0, 0, 105, 10));
    wide->setValue(0.0);
    EXPECT_EQ(textOf(wide->getHandleArea()), "100,0,5,10");
}

TEST_F(CSliderTest, KeepsItsHandleForAValueOutside) {
    slider->setValue(0.5);
    takeRedrawnAreas();
    for (const double value : {-0.1, 1.1, std::nan("")}) {
        slider->setValue(value);
        EXPECT_EQ(top(), 50);
    }
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
    slider->setValue(1.1);
    EXPECT_EQ(slider->getValue(), 1.1);
}

TEST_F(CSliderTest, CentresItsHandleWherePressed) {
    press(5, 52);
    EXPECT_EQ(top(), 50);
    EXPECT_THAT(actions.take(), ElementsAre(0.5));
    EXPECT_TRUE(slider->isDragging());
    EXPECT_EQ(slider->getHandleState(), EState::Pressed);
    EXPECT_EQ(root.getLockedControl(), slider);
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,10,105"));
    release(5, 52);
    press(5, 105);
    EXPECT_EQ(top(), 100);
    release(5, 105);
    press(5, 0);
    EXPECT_EQ(top(), 0);
    EXPECT_THAT(actions.take(), ElementsAre(0.0, 1.0));
}

TEST_F(CSliderTest, GrabsItsHandleWithoutMovingIt) {
    press(5, 4);
    EXPECT_EQ(top(), 0);
    EXPECT_THAT(actions.take(), IsEmpty());
    EXPECT_TRUE(slider->isDragging());
    move(5, 34);
    EXPECT_EQ(top(), 30);
    EXPECT_THAT(actions.take(), ElementsAre(DoubleEq(0.7)));
}

TEST_F(CSliderTest, KeepsTheMouseWhereItHasGrabbedTheHandle) {
    slider->setValue(0.5);
    press(5, 54);
    move(5, 64);
    EXPECT_EQ(top(), 60);
    release(5, 64);
    press(5, 22);  // moves the centre of the handle to the mouse
    EXPECT_EQ(top(), 20);
    move(5, 32);
    EXPECT_EQ(top(), 30);
}

TEST_F(CSliderTest, ReportsEachMovementOfADrag) {
    press(5, 2);
    move(5, 12);
    move(5, 12);
    move(500, 200);
    move(5, 0);
    takeRedrawnAreas();
    move(5, -1);  // nothing happens above the slider
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
    EXPECT_THAT(actions.take(), ElementsAre(0.9, 0.9, 0.0, 1.0));
}

TEST_F(CSliderTest, DragsAlongItsOwnAxis) {
    CSlider *wide = make(CRect(0, 200, 105, 10));
    press(2, 205);
    move(32, 400);
    EXPECT_EQ(textOf(wide->getHandleArea()), "30,0,5,10");
    move(-1, 205);
    EXPECT_EQ(textOf(wide->getHandleArea()), "30,0,5,10");
    EXPECT_THAT(actions.take(), ElementsAre(DoubleEq(0.7)));
}

TEST_F(CSliderTest, StaysLockedAfterAReleaseOverItsHandle) {
    press(5, 2);
    takeRedrawnAreas();
    release(5, 2);
    EXPECT_EQ(root.getLockedControl(), slider);
    EXPECT_FALSE(slider->isDragging());
    EXPECT_EQ(slider->getHandleState(), EState::MouseOver);
    EXPECT_EQ(takeRedrawnAreas().size(), 1u);
    move(5, 50);
    release(5, 50);
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_EQ(slider->getHandleState(), EState::Normal);
    EXPECT_THAT(actions.take(), IsEmpty());
}

TEST_F(CSliderTest, ShowsTheMouseOverItsHandle) {
    move(5, 50);
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
    move(5, 3);
    EXPECT_EQ(slider->getHandleState(), EState::MouseOver);
    EXPECT_EQ(takeRedrawnAreas().size(), 1u);
    move(5, 50);
    EXPECT_EQ(slider->getHandleState(), EState::Normal);
    EXPECT_EQ(takeRedrawnAreas().size(), 1u);
    move(5, 3);
    send(&IControlRoot::handleMouseLeaving, 5, 3);
    EXPECT_EQ(slider->getHandleState(), EState::Normal);
    press(5, 3);
    send(&IControlRoot::handleMouseLeaving, 5, 3);
    EXPECT_EQ(slider->getHandleState(), EState::Pressed);
}

TEST_F(CSliderTest, MovesByFivePixelsPerStepOfTheWheelOrByOneWithShift) {
    slider->setValue(0.5);
    scroll(5, 50, 1.0);
    scroll(5, 50, 9.0);
    scroll(5, 50, 0.0);
    scroll(5, 50, -1.0);
    EXPECT_THAT(actions.take(), ElementsAre(0.55, DoubleEq(0.6), 0.55, 0.5));
    EXPECT_EQ(slider->getHandleState(), EState::MouseOver);
    holdShift(true);
    scroll(5, 50, 1.0);
    scroll(5, 50, -1.0);
    EXPECT_THAT(actions.take(), ElementsAre(0.51, 0.5));
    slider->setValue(1.0);
    scroll(5, 50, 1.0);
    EXPECT_EQ(top(), 0);
    EXPECT_THAT(actions.take(), ElementsAre(1.0));
    EXPECT_EQ(slider->getHandleState(), EState::Normal);
}

TEST_F(CSliderTest, KeepsItsValueWithoutRoomToMove) {
    CSlider *full = make(CRect(0, 200, 10, 20));
    full->setPrimaryImage(new CTestImage(12, 25, false));
    full->setValue(0.25);
    press(0, 210);  // beside the handle
    scroll(5, 203, -1.0);
    EXPECT_EQ(full->getValue(), 0.25);
    EXPECT_EQ(full->getHandleArea().getTop(), 0);
    EXPECT_EQ(full->getRange(), 0.0);
}

TEST_F(CSliderTest, TakesTheSizeOfItsHandleFromTheImage) {
    slider->setValue(0.0);
    slider->setPrimaryImage(new CTestImage(12, 25, false));
    EXPECT_EQ(textOf(slider->getHandleArea()), "3,80,4,25");
    EXPECT_EQ(slider->getRange(), 80.0);
    slider->setPrimaryImage(nullptr);
    EXPECT_EQ(textOf(slider->getHandleArea()), "0,100,10,5");
    CSlider *wide = make(CRect(0, 0, 105, 31));
    wide->setPrimaryImage(new CTestImage(12, 25, false));
    EXPECT_EQ(textOf(wide->getHandleArea()), "0,3,4,25");
    EXPECT_EQ(wide->getRange(), 101.0);
}

TEST_F(CSliderTest, DrawsTheThirdOfItsImageThatShowsItsState) {
    SCanvas canvas;
    slider->setPrimaryImage(new CTestImage(12, 5, false));
    const auto drawnAt = [&](int x, int y) {
        slider->drawControl(canvas.graphics);
        return canvas.at(x, y);
    };
    EXPECT_EQ(drawnAt(3, 0), CTestImage::opaqueColourAt(0, 0));
    EXPECT_EQ(canvas.at(7, 0), SCanvas::background);
    EXPECT_EQ(canvas.at(3, 5), SCanvas::background);
    move(5, 2);
    EXPECT_EQ(drawnAt(6, 4), CTestImage::opaqueColourAt(7, 4));
    press(5, 2);
    EXPECT_EQ(drawnAt(6, 4), CTestImage::opaqueColourAt(11, 4));
}

TEST_F(CSliderTest, DrawsAPlainHandleWithoutAnImageOnlyIfAsked) {
    SCanvas canvas;
    slider->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
    slider->setDefaultDrawing(true);
    slider->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(5, 2), (SNativeColour{208, 208, 208}));
    EXPECT_EQ(canvas.at(5, 4), (SNativeColour{0, 0, 0}));
    EXPECT_EQ(canvas.at(5, 10), (SNativeColour{255, 255, 255}));
    press(5, 2);
    slider->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(5, 2), (SNativeColour{147, 147, 147}));
    SCanvas other;
    slider->disableControl();
    slider->drawControl(other.graphics);
    EXPECT_TRUE(other.isBlank());
}

}  // namespace
