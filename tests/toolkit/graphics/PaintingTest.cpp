#include "toolkit/graphics/Painting.h"

#include "SCanvas.h"
#include "SPicture.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::GUI::Graphics::paintWindow;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CRect;

constexpr SNativeColour white{255, 255, 255}, black{0, 0, 0};

class Painting : public testing::Test {
protected:
    std::unique_ptr<INativeSurface> window =
        createNativeSurface(nullptr, 40, 30, SCanvas::background);
    CGraphics graphics;
    CDimension size{40, 30};
};

TEST_F(Painting, CopiesOnlyTheDirtyRectangle) {
    graphics.getNativeImage().setBackgroundColour({0, 0, 0});
    paintWindow(graphics, *window, size, CRect(10, 8, 6, 4), [](CGraphics &inside) {
        EXPECT_EQ(inside.getUpdateArea().getLeft(), 10);
        EXPECT_EQ(inside.getClip().getClipRegion().getWidth(), 6);
        inside.fillRectangle(CRect(0, 0, 12, 30));
    });
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool isDirty = x >= 10 && x < 16 && y >= 8 && y < 12;
            const SNativeColour inside = x < 12 ? white : black;
            ASSERT_EQ(window->getPixel({x, y}), isDirty ? inside : SCanvas::background)
                << x << ", " << y;
        }
}

TEST_F(Painting, AnAllZeroRectangleCopiesNothing) {
    bool hasDrawn = false;
    paintWindow(graphics, *window, size, CRect(0, 0, 0, 0), [&](CGraphics &) { hasDrawn = true; });
    EXPECT_TRUE(hasDrawn);
    EXPECT_EQ(window->getPixel({0, 0}), SCanvas::background);
}

TEST_F(Painting, FreesItsImageAndResetsTheOffset) {
    paintWindow(graphics, *window, size, CRect(0, 0, 40, 30), [](CGraphics &inside) {
        EXPECT_TRUE(inside.getNativeImage().isInitialised());
        inside.setDrawingOffset(CPoint(5, 5));
    });
    EXPECT_FALSE(graphics.getNativeImage().isInitialised());
    EXPECT_EQ(graphics.getDrawingOffset(), CPoint(0, 0));
}

TEST_F(Painting, StartsAtTheOriginWhateverTheOffsetWas) {
    graphics.setDrawingOffset(CPoint(7, 7));
    paintWindow(graphics, *window, size, CRect(0, 0, 40, 30),
                [](CGraphics &inside) { EXPECT_EQ(inside.getDrawingOffset(), CPoint(0, 0)); });
}

TEST_F(Painting, FreesItsImageWhenTheDrawingThrows) {
    EXPECT_THROW(paintWindow(graphics, *window, size, CRect(0, 0, 40, 30),
                             [](CGraphics &inside) {
                                 inside.setDrawingOffset(CPoint(5, 5));
                                 throw std::runtime_error("in a control");
                             }),
                 std::runtime_error);
    EXPECT_FALSE(graphics.getNativeImage().isInitialised());
    EXPECT_EQ(graphics.getDrawingOffset(), CPoint(0, 0));
    EXPECT_EQ(window->getPixel({0, 0}), SCanvas::background);
}

TEST_F(Painting, ADirtyPartLooksLikeTheSamePartOfTheWhole) {
    const auto draw = [](CGraphics &inside) {
        inside.setAntiAliasMode(2);
        inside.getPen().setColour({200, 30, 60});
        inside.drawAntiAliasedLine(CPoint(0, 3), CPoint(39, 25));
        inside.fillEllipse(CRect(3, 5, 30, 21));
        inside.drawRoundedRectangle(CRect(5, 2, 30, 26), CDimension(9, 9));
        inside.drawLine(CPoint(38, 1), CPoint(2, 29));
    };
    paintWindow(graphics, *window, size, CRect(0, 0, 40, 30), draw);
    const SPicture whole = pictureOf(*window);
    for (const CRect &dirty : {CRect(0, 0, 7, 5), CRect(12, 9, 11, 8), CRect(30, 20, 10, 10)}) {
        const auto part = createNativeSurface(nullptr, 40, 30, SCanvas::background);
        paintWindow(graphics, *part, size, dirty, draw);
        for (int y = dirty.getTop(); y < dirty.getBottom(); ++y)
            for (int x = dirty.getLeft(); x < dirty.getRight(); ++x)
                ASSERT_EQ(part->getPixel({x, y}), whole.at(x, y)) << x << ", " << y;
    }
}

}  // namespace
