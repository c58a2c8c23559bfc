#include "toolkit/controls/CSliderArray.h"

#include "toolkit/controls/CRootTest.h"
#include "toolkit/graphics/SCanvas.h"

#include <limits>

namespace {

using Tessitor::GUI::Controls::CSliderArray;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr SNativeColour black{0, 0, 0}, normal{85, 86, 200}, highlight{239, 149, 41};

/// Four bars at 0, 5, 10 and 15.
class CSliderArrayTest : public CRootTest {
protected:
    CSliderArrayTest() { root.addControl(array); }

    std::vector<double> values() const {
        std::vector<double> found;
        for (int i = 0; i < array->getNumberOfBars(); ++i)
            found.push_back(array->getBarValue(i));
        return found;
    }

    CValueLog actions;
    SCanvas canvas;
    CSliderArray *array = new CSliderArray(&root, 4, CRect(0, 0, 20, 20), &actions);
};

TEST_F(CSliderArrayTest, StartsWithFullBarsInAllItsWidth) {
    EXPECT_THAT(values(), ElementsAre(1.0, 1.0, 1.0, 1.0));
    EXPECT_EQ(array->getLastBar(), -1);
    EXPECT_FALSE(array->isDragging());
    EXPECT_EQ(array->getActionListener(), &actions);
    EXPECT_TRUE(array->getClass() == "CSliderArray");
    EXPECT_TRUE(array->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CSliderArrayTest, FillsItsFirstAreaWithBars) {
    auto *later = new CSliderArray(&root, 4, CRect(), &actions);
    root.addControl(later);
    EXPECT_EQ(later->getNumberOfBars(), 0);
    later->setArea(CRect(0, 0, 14, 20));
    EXPECT_EQ(later->getNumberOfBars(), 3);
    later->setBarValue(0, 0.5);
    later->setArea(CRect(0, 0, 100, 20));
    EXPECT_EQ(later->getNumberOfBars(), 3);
    EXPECT_EQ(later->getBarValue(0), 0.5);
    later->setBars(0, 4, 1);
    later->setArea(CRect(0, 0, 50, 20));
    EXPECT_EQ(later->getNumberOfBars(), 0);
    auto *chosen = new CSliderArray(&root, 4, CRect(), &actions);
    root.addControl(chosen);
    chosen->setBars(2, 8, 3);
    chosen->setArea(CRect(0, 0, 100, 20));
    EXPECT_EQ(chosen->getNumberOfBars(), 2);
}

TEST_F(CSliderArrayTest, LimitsTheBarsThatItMakesByItself) {
    constexpr int most = std::numeric_limits<int>::max();
    for (const int width : {4999, 5000, most - 1, most}) {
        auto *wide = new CSliderArray(&root, 4, CRect(0, 0, width, 20), &actions);
        root.addControl(wide);
        EXPECT_EQ(wide->getNumberOfBars(), width == most ? 0 : 1000) << width;
    }
    array->setBars(1200, 4, 1);
    EXPECT_EQ(array->getNumberOfBars(), 1200);
}

TEST_F(CSliderArrayTest, SetsTheBarUnderAPress) {
    press(6, 5);
    EXPECT_THAT(values(), ElementsAre(1.0, 0.75, 1.0, 1.0));
    EXPECT_EQ(array->getLastBar(), 1);
    EXPECT_TRUE(array->isDragging());
    EXPECT_EQ(root.getLockedControl(), array);
    EXPECT_EQ(actions.take().size(), 1u);
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,20,20"));
}

TEST_F(CSliderArrayTest, SetsEachBarUnderADrag) {
    press(1, 10);
    move(6, 15);
    move(11, 20);
    move(16, 0);
    move(30, 10);   // beside all bars
    move(11, -10);  // above them
    EXPECT_THAT(values(), ElementsAre(0.5, 0.25, 0.0, 1.0));
    EXPECT_EQ(array->getLastBar(), 3);
    EXPECT_EQ(actions.take().size(), 4u);
    release(1, 10);
    EXPECT_FALSE(array->isDragging());
    EXPECT_FALSE(root.controlIsLocked());
    move(1, 2);
    EXPECT_THAT(values(), ElementsAre(0.5, 0.25, 0.0, 1.0));
    EXPECT_THAT(actions.take(), IsEmpty());
}

TEST_F(CSliderArrayTest, EndsADragWhenTheMouseLeaves) {
    press(1, 10);
    send(&IControlRoot::handleMouseLeaving, 1, 10);
    EXPECT_FALSE(array->isDragging());
    EXPECT_FALSE(root.controlIsLocked());
    takeRedrawnAreas();
    send(&IControlRoot::handleMouseLeaving, 1, 10);
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
}

TEST_F(CSliderArrayTest, LocksTheMouseEvenBetweenItsBars) {
    array->setBars(2, 4, 6);
    press(7, 10);
    EXPECT_EQ(root.getLockedControl(), array);
    EXPECT_THAT(actions.take(), IsEmpty());
    move(12, 10);
    EXPECT_THAT(values(), ElementsAre(1.0, 0.5));
}

TEST_F(CSliderArrayTest, PassesTheModifiersOn) {
    bool isShiftDown = false;
    CActionSpy listener;
    listener.onAction = [&](const auto &action) { isShiftDown = action.isShiftDown(); };
    array->registerActionListener(&listener);
    holdShift(true);
    press(6, 5);
    EXPECT_TRUE(isShiftDown);
}

TEST_F(CSliderArrayTest, SetsBarsByIndex) {
    array->setBarValue(2, 0.4);
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,20,20"));
    array->setBarValue(-1, 0.4);
    array->setBarValue(4, 0.4);
    EXPECT_THAT(takeRedrawnAreas(), IsEmpty());
    EXPECT_THAT(values(), ElementsAre(1.0, 1.0, 0.4, 1.0));
    EXPECT_EQ(array->getBarValue(-1), 0.0);
    EXPECT_EQ(array->getBarValue(4), 0.0);
    array->setBars(-3, 4, 1);
    EXPECT_EQ(array->getNumberOfBars(), 0);
}

TEST_F(CSliderArrayTest, DrawsOutlinedBarsAndHighlightsTheOneThatIsDragged) {
    press(6, 5);
    array->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(0, 0), black);
    EXPECT_EQ(canvas.at(1, 1), normal);
    EXPECT_EQ(canvas.at(4, 1), SCanvas::background);
    EXPECT_EQ(canvas.at(6, 4), SCanvas::background);
    EXPECT_EQ(canvas.at(6, 5), black);
    EXPECT_EQ(canvas.at(6, 6), highlight);
    EXPECT_EQ(canvas.at(6, 19), black);
    release(6, 5);
    array->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(6, 6), normal);
    array->setBarColours({1, 2, 3}, {4, 5, 6});
    press(6, 5);
    array->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(1, 1), (SNativeColour{1, 2, 3}));
    EXPECT_EQ(canvas.at(6, 6), (SNativeColour{4, 5, 6}));
}

TEST_F(CSliderArrayTest, ScalesItsBarsWithItsHeight) {
    array->setBarValue(0, 0.5);
    array->setArea(CRect(0, 0, 20, 10));
    array->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(1, 4), SCanvas::background);
    EXPECT_EQ(canvas.at(1, 5), black);
    EXPECT_EQ(canvas.at(1, 9), black);
    EXPECT_EQ(canvas.at(1, 10), SCanvas::background);
}

TEST_F(CSliderArrayTest, DrawsNothingWhileItIsDisabled) {
    array->disableControl();
    array->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
}

}  // namespace
