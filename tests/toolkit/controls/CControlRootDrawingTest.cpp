#include "toolkit/controls/CRootTest.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TestImage.h"

#include <stdexcept>

namespace {

using Tessitor::GUI::Graphics::CGraphics;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr SNativeColour black{0, 0, 0}, green{0, 255, 0};

class CControlRootDrawing : public CRootTest {
protected:
    /// Draws as a window does that is to be painted in this area.
    void draw(const CRect &area) {
        canvas.graphics.setUpdateArea(area);
        canvas.graphics.getClip().setClipRegion(area);
        canvas.graphics.setDrawingOffset({0, 0});
        root.drawRootControl(canvas.graphics);
    }
    void drawAll() { draw(CRect(0, 0, 40, 30)); }
    /// What has been drawn at a point, whatever the clip.
    SNativeColour at(int x, int y) {
        canvas.graphics.getClip().setClipRegion(CRect(0, 0, 40, 30));
        return canvas.at(x, y);
    }
    std::string clip() { return textOf(canvas.graphics.getClip().getClipRegion()); }

    SCanvas canvas{false};
};

/// Fills far more than the control with green.
void flood(CGraphics &graphics) {
    graphics.getBrush().setColour({0, 255, 0});
    graphics.fillRectangle(Tessitor::MathTools::CRect(-100, -100, 300, 300));
}

TEST_F(CControlRootDrawing, DrawsTheListInOrderAndTheModalControlLast) {
    IControl *modal = add(root, "modal", CRect(0, 0, 5, 5));
    add(root, "second", CRect(0, 0, 10, 10));
    IControl *removed = add(root, "removed", CRect(0, 0, 10, 10));
    add(root, "third", CRect(5, 5, 10, 10));
    root.removeControl(removed);
    root.setModalControl(modal);
    drawAll();
    EXPECT_THAT(takeLog(), ElementsAre("modal: draw 0,0,5,5", "second: draw 0,0,10,10",
                                       "third: draw 0,0,10,10", "modal: draw 0,0,5,5"));
}

TEST_F(CControlRootDrawing, TellsEachControlWhichPartWillBeSeen) {
    add(root, "inside", CRect(12, 10, 4, 4));
    add(root, "across", CRect(5, 5, 10, 10));
    add(root, "touching", CRect(20, 0, 10, 10));
    add(root, "outside", CRect(21, 0, 10, 10));
    draw(CRect(10, 8, 10, 10));
    EXPECT_THAT(takeLog(), ElementsAre("inside: draw 0,0,4,4", "across: draw 5,3,5,7",
                                       "touching: draw 0,8,0,2"));
}

TEST_F(CControlRootDrawing, MovesTheOriginAndTheClipToTheControl) {
    CSpyControl *control = add(root, "a", CRect(5, 6, 10, 8));
    control->onDraw = [&](CGraphics &graphics) {
        EXPECT_EQ(textOf(graphics.getDrawingOffset()), "5,6");
        EXPECT_EQ(clip(), "5,6,10,8");
        flood(graphics);
    };
    drawAll();
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool isInside = x >= 5 && x < 15 && y >= 6 && y < 14;
            ASSERT_EQ(at(x, y), isInside ? green : SCanvas::background) << x << "," << y;
        }
}

TEST_F(CControlRootDrawing, DrawsNothingOutsideWhatIsPainted) {
    add(root, "a", CRect(5, 6, 10, 8))->onDraw = flood;
    draw(CRect(10, 10, 20, 20));
    EXPECT_EQ(at(9, 10), SCanvas::background);
    EXPECT_EQ(at(10, 10), green);
}

TEST_F(CControlRootDrawing, PutsTheGraphicsBack) {
    add(root, "a", CRect(5, 6, 10, 8))->onDraw = [](CGraphics &graphics) {
        graphics.setUpdateArea(CRect());
        graphics.setDrawingOffset({99, 99});
    };
    CSpyControl *thrower = add(root, "b", CRect(5, 6, 10, 8));
    draw(CRect(1, 2, 30, 20));
    EXPECT_EQ(clip(), "1,2,30,20");
    EXPECT_EQ(textOf(canvas.graphics.getUpdateArea()), "1,2,30,20");
    EXPECT_EQ(textOf(canvas.graphics.getDrawingOffset()), "0,0");
    thrower->onDraw = [](CGraphics &) { throw std::runtime_error("drawing"); };
    EXPECT_THROW(draw(CRect(1, 2, 30, 20)), std::runtime_error);
    EXPECT_EQ(clip(), "1,2,30,20");
    EXPECT_EQ(textOf(canvas.graphics.getUpdateArea()), "1,2,30,20");
    EXPECT_EQ(textOf(canvas.graphics.getDrawingOffset()), "0,0");
    EXPECT_EQ(thrower->getReferenceCount(), 1);
}

TEST_F(CControlRootDrawing, DrawsTheBackgroundImageInTheUpdateAreaOnly) {
    root.setBackgroundImage(new CTestImage(20, 20, false));
    draw(CRect(5, 5, 10, 30));
    EXPECT_EQ(at(5, 5), CTestImage::opaqueColourAt(5, 5));
    EXPECT_EQ(at(14, 19), CTestImage::opaqueColourAt(14, 19));
    EXPECT_EQ(at(4, 5), SCanvas::background);
    EXPECT_EQ(at(15, 5), SCanvas::background);
    EXPECT_EQ(at(5, 20), SCanvas::background);
}

TEST_F(CControlRootDrawing, DrawsABlendedBackgroundThatIsSmallerThanTheWindow) {
    root.setBackgroundImage(new CTestImage(9, 9, true));
    drawAll();
    EXPECT_NE(at(4, 4), SCanvas::background);
    draw(CRect(25, 25, 5, 5));  // the image does not reach there
    EXPECT_EQ(at(26, 26), SCanvas::background);
}

TEST_F(CControlRootDrawing, LetsAControlRemoveItselfWhileItIsDrawn) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CSpyControl *control = add(root, "a", CRect(5, 6, 10, 8));
    control->isDestroyed = isDestroyed;
    control->onDraw = [&](CGraphics &) {
        root.clearControls();
        EXPECT_FALSE(*isDestroyed);
    };
    add(root, "b", CRect(5, 6, 10, 8));
    drawAll();
    EXPECT_TRUE(*isDestroyed);
    EXPECT_THAT(takeLog(), ElementsAre("a: draw 0,0,10,8"));
}

// Panels

class CControlPanelDrawing : public CControlRootDrawing {
protected:
    CControlPanel *panel = addPanel(root, CRect(10, 5, 20, 20));
};

TEST_F(CControlPanelDrawing, DrawsItsControlsInPlaceAndInsideItself) {
    CControlPanel *inner = addPanel(*panel, CRect(5, 5, 10, 30));
    add(*inner, "a", CRect(2, 2, 30, 4))->onDraw = flood;
    add(*inner, "b", CRect(0, 19, 5, 5));
    drawAll();
    EXPECT_THAT(takeLog(), ElementsAre("a: draw 0,0,8,4"));
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool isInside = x >= 17 && x < 25 && y >= 12 && y < 16;
            ASSERT_EQ(at(x, y), isInside ? green : SCanvas::background) << x << "," << y;
        }
}

TEST_F(CControlPanelDrawing, TellsItsControlsWhichPartWillBeSeen) {
    add(*panel, "a", CRect(2, 2, 10, 10));
    add(*panel, "b", CRect(12, 12, 4, 4));
    draw(CRect(0, 0, 15, 12));
    EXPECT_THAT(takeLog(), ElementsAre("a: draw 0,0,3,5"));
    EXPECT_EQ(clip(), "0,0,15,12");
}

TEST_F(CControlPanelDrawing, DrawsItsModalControlLast) {
    IControl *modal = add(*panel, "modal", CRect(0, 0, 5, 5));
    add(*panel, "a", CRect(0, 0, 5, 5));
    panel->setModalControl(modal);
    drawAll();
    EXPECT_THAT(takeLog(),
                ElementsAre("modal: draw 0,0,5,5", "a: draw 0,0,5,5", "modal: draw 0,0,5,5"));
}

TEST_F(CControlPanelDrawing, DrawsItsBackgroundImageInPlaceOfThePrimaryImage) {
    panel->setPrimaryImage(new CTestImage(20, 20, false));
    panel->setBackgroundImage(new CTestImage(15, 15, false));
    draw(CRect(12, 0, 28, 30));
    EXPECT_EQ(at(12, 5), CTestImage::opaqueColourAt(2, 0));
    EXPECT_EQ(at(24, 19), CTestImage::opaqueColourAt(14, 14));
    EXPECT_EQ(at(11, 5), SCanvas::background);
    EXPECT_EQ(at(25, 20), SCanvas::background);
}

TEST_F(CControlPanelDrawing, DrawsItsPrimaryImageOrItsFrameUnderItsControls) {
    panel->setDefaultControlColours({0, 255, 0}, {0, 0, 0});
    drawAll();
    EXPECT_EQ(at(10, 5), SCanvas::background);
    panel->setDefaultDrawing(true);
    add(*panel, "a", CRect(0, 0, 4, 4))->onDraw = flood;
    drawAll();
    EXPECT_EQ(at(10, 5), green);
    EXPECT_EQ(at(14, 5), black);
    EXPECT_EQ(at(14, 6), green);
    panel->setPrimaryImage(new CTestImage(20, 20, false));
    drawAll();
    EXPECT_EQ(at(14, 6), CTestImage::opaqueColourAt(4, 1));
}

TEST_F(CControlPanelDrawing, DrawsNoControlsWhileItIsDisabled) {
    add(*panel, "a", CRect(0, 0, 4, 4));
    panel->setDisabledImage(new CTestImage(20, 20, false));
    panel->disableControl();
    drawAll();
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_EQ(at(10, 5), CTestImage::opaqueColourAt(0, 0));
}

}  // namespace
