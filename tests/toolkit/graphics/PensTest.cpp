#include "SCanvas.h"
#include "toolkit/graphics/CBrush.h"
#include "toolkit/graphics/CPen.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Graphics::CBrush;
using Tessitor::GUI::Graphics::CPen;

constexpr SNativeColour red{255, 0, 0}, white{255, 255, 255}, black{0, 0, 0};

struct SSurface {
    std::unique_ptr<INativeSurface> surface =
        createNativeSurface(nullptr, 40, 30, SCanvas::background);

    /// What a line along row 10 leaves in a row.
    SNativeColour afterLine(int row) {
        surface->moveTo({5, 10});
        surface->lineTo({30, 10});
        return surface->getPixel({20, row});
    }
    SNativeColour afterFill() {
        surface->fillRectangle({0, 20, 5, 25});
        return surface->getPixel({2, 22});
    }
};

class CPenTest : public testing::Test, protected SSurface {
protected:
    CPen pen;
};
class CBrushTest : public testing::Test, protected SSurface {
protected:
    CBrush brush;
};

TEST_F(CPenTest, IsOneWideWithAFlatCapAtFirst) {
    EXPECT_EQ(pen.getWidth(), 1);
    EXPECT_EQ(pen.getLineCap(), 0);
}

TEST_F(CPenTest, DrawsInItsColourAndWidth) {
    pen.initialise(1, surface.get(), CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterLine(10), red);
    EXPECT_EQ(afterLine(11), SCanvas::background);
    pen.setWidth(3);
    EXPECT_EQ(afterLine(11), red);
    pen.setWidthAndColour(5, CAlphaColour(0, 0, 0));
    EXPECT_EQ(afterLine(12), black);
    pen.setColour(CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterLine(12), red);
}

TEST_F(CPenTest, NullPenDrawsNothingUntilAColourIsSet) {
    pen.initialise(1, surface.get(), CAlphaColour(255, 0, 0));
    pen.useNullPen();
    EXPECT_EQ(pen.getColour(), CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterLine(10), SCanvas::background);
    pen.setColour(CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterLine(10), red);
}

TEST_F(CPenTest, GivesTheSurfaceBackItsFirstPen) {
    pen.initialise(5, surface.get(), CAlphaColour(255, 0, 0));
    pen.uninitialise();
    pen.setColour(CAlphaColour(255, 255, 255));  // no longer reaches the surface
    EXPECT_EQ(afterLine(10), black);
    EXPECT_EQ(afterLine(12), SCanvas::background);
}

TEST_F(CPenTest, TellsSmoothDrawingAlphaAndCap) {
    pen.setWidthAndColour(4, CAlphaColour(1, 2, 3, 4));
    pen.setLineCap(2);
    const SNativeSmoothPen native = pen.toNative();
    EXPECT_EQ(native.colour, (SNativeColour{1, 2, 3, 4}));
    EXPECT_EQ(native.width, 4);
    EXPECT_EQ(native.cap, 2);
}

TEST_F(CBrushTest, FillsInItsColour) {
    brush.initialise(surface.get(), CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterFill(), red);
    brush.setColour(CAlphaColour(0, 0, 0));
    EXPECT_EQ(afterFill(), black);
}

TEST_F(CBrushTest, NullBrushFillsNothingUntilAColourIsSet) {
    brush.initialise(surface.get(), CAlphaColour(255, 0, 0));
    brush.useNullBrush();
    EXPECT_EQ(brush.getColour(), CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterFill(), SCanvas::background);
    brush.setColour(CAlphaColour(255, 0, 0));
    EXPECT_EQ(afterFill(), red);
}

TEST_F(CBrushTest, GivesTheSurfaceBackItsFirstBrush) {
    brush.initialise(surface.get(), CAlphaColour(255, 0, 0));
    brush.uninitialise();
    brush.setColour(CAlphaColour(0, 0, 0));  // no longer reaches the surface
    EXPECT_EQ(afterFill(), white);
}

}  // namespace
