#include "toolkit/graphics/CClip.h"

#include "SCanvas.h"
#include "foundation/CException.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CClip;
using Tessitor::MathTools::CRect;

constexpr SNativeColour white{255, 255, 255};

TEST(CClip, RefusesANullImage) {
    CClip clip;
    try {
        clip.initialise(nullptr, CRect(0, 0, 1, 1), nullptr);
        FAIL();
    } catch (const Tessitor::Exceptions::CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "Native image is NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "Tessitor::GUI::Graphics::CClip::initialise");
    }
}

TEST(CClip, DoesNothingBeforeItIsInitialised) {
    CClip clip;
    clip.setClipRegion(CRect(1, 2, 3, 4));
    clip.resetClip();
    EXPECT_FALSE(clip.isActive());
    EXPECT_EQ(clip.getClipRegion().getWidth(), 0);
}

TEST(CClip, TheWholeAreaIsTheClipAtFirst) {
    SCanvas canvas;
    EXPECT_FALSE(canvas.graphics.getClip().isActive());
    EXPECT_EQ(canvas.graphics.getClip().getClipRegion().getWidth(), 40);
    EXPECT_EQ(canvas.graphics.getClip().getDrawingArea().getHeight(), 30);
}

TEST(CClip, LimitsBothWaysOfDrawing) {
    for (const bool usesSmoothDrawing : {true, false}) {
        SCanvas canvas(usesSmoothDrawing);
        canvas.graphics.getClip().setClipRegion(CRect(10, 5, 4, 3));
        EXPECT_TRUE(canvas.graphics.getClip().isActive());
        EXPECT_EQ(canvas.graphics.getClip().getClipRegion().getLeft(), 10);
        canvas.graphics.fillRectangle(CRect(0, 0, 40, 30));
        canvas.graphics.getClip().setClipRegion(CRect(0, 0, 40, 30));
        EXPECT_EQ(canvas.at(9, 5), SCanvas::background);
        EXPECT_EQ(canvas.at(10, 4), SCanvas::background);
        EXPECT_EQ(canvas.at(10, 5), white);
        EXPECT_EQ(canvas.at(13, 7), white);
        EXPECT_EQ(canvas.at(14, 7), SCanvas::background);
        EXPECT_EQ(canvas.at(13, 8), SCanvas::background);
    }
}

TEST(CClip, ResetLeavesTheImageLimited) {
    SCanvas canvas;
    CClip &clip = canvas.graphics.getClip();
    clip.setClipRegion(CRect(10, 5, 4, 3));
    clip.resetClip();
    EXPECT_FALSE(clip.isActive());
    EXPECT_EQ(clip.getClipRegion().getWidth(), 4);
    canvas.graphics.drawPixel(Tessitor::MathTools::CPoint(20, 20));
    canvas.graphics.fillRectangle(CRect(0, 0, 40, 30));
    clip.setClipRegion(CRect(0, 0, 40, 30));
    EXPECT_EQ(canvas.at(20, 20), SCanvas::background);
}

TEST(CClip, ARegionOfNegativeSizeIsReadBackwards) {
    for (const bool usesSmoothDrawing : {true, false}) {
        SCanvas canvas(usesSmoothDrawing);
        canvas.graphics.getClip().setClipRegion(CRect(14, 8, -4, -3));
        canvas.graphics.fillRectangle(CRect(0, 0, 40, 30));
        canvas.graphics.getClip().setClipRegion(CRect(0, 0, 40, 30));
        EXPECT_EQ(canvas.at(10, 5), white);
        EXPECT_EQ(canvas.at(13, 7), white);
        EXPECT_EQ(canvas.at(14, 8), SCanvas::background);
    }
}

TEST(CClip, ResetFreesSmoothDrawing) {
    struct SResets : INativeSmoothDrawing {
        int count = 0;

        void resetClip() override { ++count; }
        void setSmoothing(ENativeSmoothing) override {}
        void setClip(const SNativeRect &) override {}
        void drawLine(const SNativeSmoothPen &, SNativePoint, SNativePoint) override {}
        void drawRectangle(const SNativeSmoothPen &, const SNativeRect &) override {}
        void fillRectangle(SNativeColour, const SNativeRect &) override {}
        void fillRoundedRectangle(SNativeColour, const SNativeRect &, std::int32_t,
                                  std::int32_t) override {}
        void fillEllipse(SNativeColour, const SNativeRect &) override {}
        void fillPolygon(SNativeColour, std::span<const SNativePoint>) override {}
        void drawText(const char *, const SNativeRect &, const INativeFont &, SNativeColour, int,
                      int) override {}
    };
    Tessitor::GUI::Graphics::CNativeImage image;
    SResets resets;
    CClip clip;
    clip.initialise(&image, CRect(0, 0, 40, 30), &resets);
    clip.resetClip();
    EXPECT_EQ(resets.count, 0) << "no clip has been set";
    clip.setClipRegion(CRect(10, 5, 4, 3));
    clip.resetClip();
    EXPECT_EQ(resets.count, 1);
}

TEST(CClip, EndsWithThePainting) {
    SCanvas canvas;
    canvas.graphics.getClip().setClipRegion(CRect(10, 5, 4, 3));
    canvas.graphics.uninitialise();
    EXPECT_FALSE(canvas.graphics.getClip().isActive());
    canvas.graphics.initialise(canvas.target.get(), {40, 30});
    canvas.graphics.drawPixel(Tessitor::MathTools::CPoint(20, 20));
    EXPECT_NE(canvas.at(20, 20), SCanvas::background);
}

}  // namespace
