#include "toolkit/graphics/CGraphics.h"

#include "SCanvas.h"
#include "SPicture.h"
#include "TestImage.h"
#include "toolkit/graphics/StaticColours.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CPolygon;
using Tessitor::MathTools::CRect;

constexpr SNativeColour red{255, 0, 0}, green{0, 255, 0};
const CAlphaColour redColour(255, 0, 0), greenColour(0, 255, 0);

CPolygon polygon(std::initializer_list<CPoint> points) {
    CPolygon result(0);
    for (const CPoint &point : points)
        result.addPoint(point);
    return result;
}

void drawEverything(CGraphics &graphics) {
    CTestImage image(8, 8, true), opaque(8, 8, false);
    CFont font("Arial", 11, false, false);
    const CRect rect(2, 2, 20, 20);
    const CPolygon triangle = polygon({{2, 2}, {20, 2}, {2, 20}});
    graphics.setTextColour(redColour);
    graphics.getPen().setColour(redColour);
    graphics.getBrush().setColour(redColour);
    graphics.drawPixel(CPoint(1, 1));
    graphics.drawAntiAliasedPixel(CPoint(1, 1), 255);
    graphics.moveTo(CPoint(0, 0));
    graphics.drawLineTo(CPoint(9, 9));
    graphics.drawLine(CPoint(0, 0), CPoint(9, 3));
    graphics.drawAntiAliasedLine(CPoint(0, 0), CPoint(9, 3));
    graphics.drawRectangle(rect);
    graphics.drawRoundedRectangle(rect, CDimension(4, 4));
    graphics.drawPolygon(triangle);
    graphics.drawAntiAliasedPolygon(triangle);
    graphics.drawArc(rect, CPoint(0, 0), CPoint(20, 0), true);
    graphics.drawEllipse(rect);
    graphics.fillRectangle(rect);
    graphics.fillRoundedRectangle(rect, CDimension(4, 4));
    graphics.fillEllipse(rect);
    graphics.fillPolygon(triangle);
    graphics.drawFilledBorderedRectangle(rect);
    graphics.drawRaisedRectangle(rect);
    graphics.drawSunkenRectangle(rect);
    graphics.drawGradient(rect);
    graphics.drawImage(&image, CRect(0, 0, 8, 8), CRect(0, 0, 8, 8));
    graphics.drawImage(&image, CRect(0, 0, 8, 8), CRect(0, 0, 8, 8), 0.5);
    graphics.drawImage(&opaque, CRect(0, 0, 8, 8), CRect(0, 0, 8, 8));
    graphics.drawText("text", rect, &font, 0);
    graphics.beginAlphaDrawing(0.5);
    graphics.endAlphaDrawing(rect, rect);
}

TEST(CGraphics, DrawsNothingBeforeAndAfterAPainting) {
    const auto surface = createNativeSurface(nullptr, 40, 30, SCanvas::background);
    for (const bool usesSmoothDrawing : {true, false}) {
        CGraphics graphics(usesSmoothDrawing);
        drawEverything(graphics);
        graphics.initialise(*surface, CDimension(40, 30));
        graphics.uninitialise();
        drawEverything(graphics);
        graphics.uninitialise();
    }
    for (const SNativeColour &pixel : pictureOf(*surface).pixels)
        ASSERT_EQ(pixel, SCanvas::background);
}

TEST(CGraphics, DrawsNothingOnAnImageThatTheSystemRefuses) {
    CGraphics graphics;
    graphics.initialise(nullptr, CDimension(0, 30));
    EXPECT_FALSE(graphics.getNativeImage().isInitialised());
    drawEverything(graphics);
}

TEST(CGraphics, DrawsStraightOnASurfaceOfItsOwn) {
    const auto surface = createNativeSurface(nullptr, 40, 30, SCanvas::background);
    CGraphics graphics;
    graphics.initialise(*surface, CDimension(40, 30));
    EXPECT_FALSE(graphics.getNativeImage().isInitialised());
    graphics.beginAlphaDrawing(0.5);  // does nothing
    graphics.getBrush().setColour(redColour);
    graphics.fillRectangle(CRect(3, 3, 4, 4));
    graphics.endAlphaDrawing(CRect(0, 0, 40, 30), CRect(0, 0, 40, 30));
    EXPECT_EQ(surface->getPixel({3, 3}), red);
}

TEST(CGraphics, StartsEachPaintingWithAThinBlackPenAndAWhiteBrush) {
    CGraphics graphics;
    for (int painting = 0; painting < 2; ++painting) {
        graphics.initialise(nullptr, CDimension(40, 30));
        EXPECT_EQ(graphics.getPen().getColour(), CAlphaColour(0, 0, 0));
        EXPECT_EQ(graphics.getPen().getWidth(), 1);
        EXPECT_EQ(graphics.getBrush().getColour(), CAlphaColour(255, 255, 255));
        INativeSurface &picture = *graphics.getNativeImage().getSurface();
        graphics.drawPixel(CPoint(0, 0));
        graphics.fillRectangle(CRect(1, 0, 1, 1));
        EXPECT_EQ(picture.getPixel({0, 0}), (SNativeColour{0, 0, 0}));
        EXPECT_EQ(picture.getPixel({1, 0}), (SNativeColour{255, 255, 255}));
        graphics.getPen().setWidthAndColour(5, redColour);
        graphics.getBrush().setColour(redColour);
    }
}

TEST(CGraphics, ASecondPaintingReplacesTheFirst) {
    SCanvas canvas;
    canvas.graphics.fillRectangle(CRect(0, 0, 40, 30));
    canvas.graphics.initialise(canvas.target.get(), {40, 30});
    EXPECT_TRUE(canvas.isBlank());
    EXPECT_EQ(canvas.graphics.getSize().getWidth(), 40);
    EXPECT_EQ(canvas.graphics.getSize().getHeight(), 30);
}

TEST(CGraphics, TextIsBlackAtFirst) {
    EXPECT_EQ(CGraphics().getTextColour(), CAlphaColour(0, 0, 0));
}

TEST(CGraphics, APolygonOfOnePointOnlyMoves) {
    SCanvas canvas;
    canvas.graphics.getPen().setColour(redColour);
    canvas.graphics.drawPolygon(polygon({{5, 5}}));
    EXPECT_TRUE(canvas.isBlank());
    canvas.graphics.drawLineTo(CPoint(8, 5));
    EXPECT_EQ(canvas.at(5, 5), red);
    EXPECT_EQ(canvas.at(7, 5), red);
    EXPECT_EQ(canvas.at(8, 5), SCanvas::background);
}

TEST(CGraphics, ASmoothPolygonNeedsThreePoints) {
    for (const bool usesSmoothDrawing : {true, false}) {
        SCanvas canvas(usesSmoothDrawing);
        canvas.graphics.drawAntiAliasedPolygon(polygon({{2, 2}, {20, 20}}));
        EXPECT_TRUE(canvas.isBlank());
        canvas.graphics.drawAntiAliasedPolygon(polygon({{2, 2}, {20, 20}, {30, 3}}));
        EXPECT_FALSE(canvas.isBlank());
        EXPECT_EQ(canvas.at(16, 2), SCanvas::background) << "it is not closed";
    }
}

TEST(CGraphics, PlainShapesKeepTheColoursOfPenAndBrush) {
    SCanvas canvas(false);
    CGraphics &graphics = canvas.graphics;
    graphics.getPen().setColour(redColour);
    graphics.getBrush().setColour(greenColour);
    graphics.drawRectangle(CRect(2, 2, 10, 10));
    EXPECT_EQ(canvas.at(5, 5), SCanvas::background) << "an outline is not filled";
    graphics.fillEllipse(CRect(20, 2, 11, 11));
    EXPECT_EQ(canvas.at(25, 2), green) << "a filled shape has no outline";
    graphics.drawRoundedRectangle(CRect(2, 16, 10, 10), CDimension(3, 3));
    EXPECT_EQ(canvas.at(5, 20), SCanvas::background);
    EXPECT_EQ(graphics.getPen().getColour(), redColour);
    EXPECT_EQ(graphics.getBrush().getColour(), greenColour);
    graphics.drawPixel(CPoint(0, 0));
    graphics.fillRectangle(CRect(1, 0, 1, 1));
    EXPECT_EQ(canvas.at(0, 0), red);
    EXPECT_EQ(canvas.at(1, 0), green);
}

TEST(CGraphics, CornersHaveAWidthAndAHeight) {
    for (const bool usesSmoothDrawing : {true, false}) {
        SCanvas filled(usesSmoothDrawing), outlined(usesSmoothDrawing);
        filled.graphics.getBrush().setColour(redColour);
        filled.graphics.fillRoundedRectangle(CRect(0, 0, 40, 30), CDimension(36, 4));
        EXPECT_EQ(filled.at(3, 0), SCanvas::background);
        EXPECT_EQ(filled.at(0, 3), red);
        outlined.graphics.getPen().setColour(redColour);
        outlined.graphics.drawRoundedRectangle(CRect(0, 0, 40, 30), CDimension(36, 4));
        EXPECT_EQ(outlined.at(3, 0), SCanvas::background);
        EXPECT_EQ(outlined.at(0, 3), red);
    }
}

TEST(CGraphics, SoftPixelKeepsThePenColour) {
    SCanvas canvas;
    canvas.graphics.getPen().setColour(redColour);
    canvas.graphics.drawAntiAliasedPixel(CPoint(4, 4), 51);
    EXPECT_EQ(canvas.at(4, 4), (SNativeColour{107, 64, 77}));
    EXPECT_EQ(canvas.graphics.getPen().getColour(), redColour);
}

TEST(CGraphics, ARaisedRectangleIsLightAtTheTopLeft) {
    SCanvas canvas;
    canvas.graphics.getPen().setColour(CAlphaColour(0, 100, 255));
    canvas.graphics.getBrush().setColour(greenColour);
    canvas.graphics.drawRaisedRectangle(CRect(2, 3, 10, 8));
    constexpr SNativeColour edge{0, 100, 255}, dark{0, 50, 127}, light{192, 217, 255};
    EXPECT_EQ(canvas.at(2, 3), edge);
    EXPECT_EQ(canvas.at(11, 10), edge);
    EXPECT_EQ(canvas.at(3, 4), light);
    EXPECT_EQ(canvas.at(10, 4), light) << "the top edge is drawn last";
    EXPECT_EQ(canvas.at(3, 9), light) << "the left edge is drawn over the bottom";
    EXPECT_EQ(canvas.at(4, 9), dark);
    EXPECT_EQ(canvas.at(10, 9), dark);
    EXPECT_EQ(canvas.at(10, 5), dark);
    EXPECT_EQ(canvas.at(5, 5), green);
    EXPECT_EQ(canvas.graphics.getBrush().getColour(), greenColour);
}

TEST(CGraphics, ASunkenRectangleIsDarkAtTheTopLeft) {
    SCanvas canvas;
    canvas.graphics.getPen().setColour(CAlphaColour(0, 100, 255));
    canvas.graphics.drawSunkenRectangle(CRect(2, 3, 10, 8));
    constexpr SNativeColour dark{0, 50, 127}, light{192, 217, 255};
    EXPECT_EQ(canvas.at(3, 4), dark);
    EXPECT_EQ(canvas.at(10, 9), light);
    EXPECT_EQ(canvas.graphics.getPen().getColour(), CAlphaColour(0, 100, 255));
}

TEST(CGraphics, ARaisedRectangleWithoutRoomHasNoInnerEdge) {
    for (const int size : {1, 2}) {
        SCanvas canvas, bordered;
        canvas.graphics.drawRaisedRectangle(CRect(5, 5, size, 9));
        canvas.graphics.drawSunkenRectangle(CRect(15, 5, 9, size));
        bordered.graphics.drawFilledBorderedRectangle(CRect(5, 5, size, 9));
        bordered.graphics.drawFilledBorderedRectangle(CRect(15, 5, 9, size));
        EXPECT_TRUE(pictureOf(canvas.picture()).pixels == pictureOf(bordered.picture()).pixels);
    }
}

TEST(CGraphics, AGradientRunsTowardsWhiteAndBackFromTheOrigin) {
    SCanvas canvas;
    canvas.graphics.getPen().setColour(CAlphaColour(55, 155, 0));
    canvas.graphics.drawGradient(CRect(7, 9, 12, 10));
    EXPECT_EQ(canvas.at(0, 0), (SNativeColour{55, 155, 0}));
    EXPECT_EQ(canvas.at(11, 1), (SNativeColour{95, 175, 51}));
    EXPECT_EQ(canvas.at(0, 5), (SNativeColour{255, 255, 255}));
    EXPECT_EQ(canvas.at(0, 6), (SNativeColour{215, 235, 204}));
    EXPECT_EQ(canvas.at(0, 9), (SNativeColour{95, 175, 51}));
    EXPECT_EQ(canvas.at(12, 0), SCanvas::background);
    EXPECT_EQ(canvas.at(0, 10), SCanvas::background);
    EXPECT_EQ(canvas.graphics.getPen().getColour(), CAlphaColour(55, 155, 0));
}

TEST(CGraphics, AGradientOfOneRowDrawsNothing) {
    SCanvas canvas;
    for (const int height : {1, 0, -5})
        canvas.graphics.drawGradient(CRect(0, 0, 10, height));
    EXPECT_TRUE(canvas.isBlank());
}

TEST(CGraphics, AnImageThatIsNotLoadedDrawsNothing) {
    SCanvas canvas;
    const CRect area(0, 0, 8, 8);
    for (const bool hasAlpha : {true, false}) {
        CTestImage image(8, 8, hasAlpha);
        image.unloadImage();
        canvas.graphics.drawImage(&image, area, area);
        canvas.graphics.drawImage(&image, area, area, 1.0);
    }
    canvas.graphics.drawImage(nullptr, area, area);
    canvas.graphics.drawImage(nullptr, area, area, 1.0);
    EXPECT_TRUE(canvas.isBlank());
}

TEST(CGraphics, AnImageWithoutAlphaIgnoresTheWeight) {
    SCanvas canvas;
    CTestImage image(8, 8, false);
    canvas.graphics.drawImage(&image, CRect(1, 1, 8, 8), CRect(0, 0, 8, 8), 0.0);
    EXPECT_EQ(canvas.at(1, 1), CTestImage::opaqueColourAt(0, 0));
}

TEST(CGraphics, TruncatesTheWeightOfAnImageToAByte) {
    SCanvas canvas;
    CTestImage image(8, 8, true);
    canvas.graphics.drawImage(&image, CRect(0, 0, 8, 8), CRect(0, 0, 8, 8), 0.0039);
    EXPECT_TRUE(canvas.isBlank()) << "0.99 is cut to 0";
}

TEST(CGraphics, NineAndTenAlignLikeThreeAndFour) {
    CFont font("Arial", 11, false, false);
    for (const auto &[alias, alignment] : {std::pair(9, 3), std::pair(10, 4), std::pair(11, 0)})
        for (const bool usesSmoothDrawing : {true, false}) {
            SCanvas first(usesSmoothDrawing), second(usesSmoothDrawing);
            first.graphics.drawText("ab", CRect(0, 0, 40, 30), &font, alias);
            second.graphics.drawText("ab", CRect(0, 0, 40, 30), &font, alignment);
            EXPECT_FALSE(first.isBlank());
            EXPECT_TRUE(pictureOf(first.picture()).pixels == pictureOf(second.picture()).pixels)
                << alias;
        }
}

TEST(CGraphics, NoFontMeansTheDefaultFont) {
    CFont::createDefaultFont();
    {
        CFont arial("Arial", 11, false, false);
        SCanvas first, second;
        first.graphics.drawText("ab", CRect(0, 0, 40, 30), nullptr, 0);
        second.graphics.drawText("ab", CRect(0, 0, 40, 30), &arial, 0);
        EXPECT_TRUE(pictureOf(first.picture()).pixels == pictureOf(second.picture()).pixels);
        CDimension implied, given;
        EXPECT_TRUE(CGraphics::getTextExtent("ab", implied, nullptr));
        EXPECT_TRUE(CGraphics::getTextExtent("ab", given, &arial));
        EXPECT_EQ(implied.getWidth(), given.getWidth());
    }
    CFont::releaseDefaultFont();
}

TEST(CGraphics, WithoutADefaultFontNoTextIsDrawn) {
    SCanvas canvas;
    canvas.graphics.drawText("ab", CRect(0, 0, 40, 30), nullptr, 0);
    EXPECT_TRUE(canvas.isBlank());
    CDimension extent;
    EXPECT_FALSE(CGraphics::getTextExtent("ab", extent, nullptr));
    EXPECT_GT(extent.getWidth(), 0) << "it is measured with a font of the system";
    EXPECT_GT(extent.getHeight(), 0);
}

TEST(CGraphics, OnlySmoothTextHasAlpha) {
    CFont font("Arial", 11, false, false);
    for (const bool usesSmoothDrawing : {true, false}) {
        SCanvas canvas(usesSmoothDrawing);
        canvas.graphics.setTextColour(CAlphaColour(255, 0, 0, 0));
        canvas.graphics.drawText("ab", CRect(0, 0, 40, 30), &font, 0);
        EXPECT_EQ(canvas.isBlank(), usesSmoothDrawing);
    }
}

TEST(CGraphics, ATextFitsIntoItsOwnExtent) {
    for (const std::int32_t size : {8, 10, 11, 20})
        for (const char *text : {"W", "Threshold", "-12.5 dB", "fgj", "AV\nyy"}) {
            CFont font("Arial", size, false, true);
            CDimension extent;
            ASSERT_TRUE(CGraphics::getTextExtent(text, extent, &font));
            const auto drawIn = [&](const CRect &rect) {
                CGraphics graphics;
                graphics.initialise(nullptr, CDimension(200, 80));
                graphics.drawText(text, rect, &font, 0);
                return pictureOf(*graphics.getNativeImage().getSurface()).pixels;
            };
            EXPECT_TRUE(drawIn({CPoint(4, 4), extent}) == drawIn(CRect(4, 4, 190, 70)))
                << text << " at " << size;
        }
}

TEST(CGraphics, AlphaSectionsDoNotNest) {
    SCanvas canvas;
    CGraphics &graphics = canvas.graphics;
    const CRect all(0, 0, 40, 30);
    graphics.endAlphaDrawing(all, all);  // none is open
    EXPECT_TRUE(canvas.isBlank());

    graphics.beginAlphaDrawing(1.0);
    graphics.beginAlphaDrawing(0.0);  // ignored, with its weight
    graphics.getBrush().setColour(redColour);
    graphics.fillRectangle(CRect(5, 5, 4, 4));
    EXPECT_TRUE(canvas.isBlank()) << "it is drawn on the copy";
    graphics.endAlphaDrawing(all, all);
    EXPECT_EQ(canvas.at(5, 5), red);
    EXPECT_EQ(graphics.getBrush().getColour(), CAlphaColour(255, 255, 255));
}

TEST(CGraphics, AnAlphaSectionStartsWithTheColoursOfThePainting) {
    SCanvas canvas;
    CGraphics &graphics = canvas.graphics;
    graphics.getPen().setColour(redColour);
    graphics.getBrush().setColour(greenColour);
    graphics.beginAlphaDrawing(1.0);
    graphics.drawPixel(CPoint(1, 1));
    graphics.fillRectangle(CRect(2, 2, 4, 4));
    graphics.endAlphaDrawing(CRect(0, 0, 40, 30), CRect(0, 0, 40, 30));
    EXPECT_EQ(canvas.at(1, 1), red);
    EXPECT_EQ(canvas.at(2, 2), green);
}

TEST(CGraphics, AnAlphaSectionIsAsSmoothAsThePainting) {
    const CRect all(0, 0, 40, 30);
    SCanvas plain, within, across;
    plain.graphics.setAntiAliasMode(2);
    plain.graphics.fillEllipse(CRect(3, 3, 21, 17));

    within.graphics.setAntiAliasMode(2);
    within.graphics.beginAlphaDrawing(1.0);
    within.graphics.fillEllipse(CRect(3, 3, 21, 17));
    within.graphics.endAlphaDrawing(all, all);
    EXPECT_TRUE(pictureOf(within.picture()).pixels == pictureOf(plain.picture()).pixels);

    across.graphics.beginAlphaDrawing(1.0);
    across.graphics.setAntiAliasMode(2);
    across.graphics.endAlphaDrawing(all, all);
    across.graphics.fillEllipse(CRect(3, 3, 21, 17));
    EXPECT_TRUE(pictureOf(across.picture()).pixels == pictureOf(plain.picture()).pixels)
        << "a mode that is set in a section outlasts it";
}

TEST(CGraphics, AnAlphaSectionBlendsAPartSomewhereElse) {
    SCanvas canvas;
    CGraphics &graphics = canvas.graphics;
    graphics.beginAlphaDrawing(1.0);
    graphics.getBrush().setColour(redColour);
    graphics.fillRectangle(CRect(0, 0, 40, 30));
    graphics.endAlphaDrawing(CRect(10, 12, 4, 4), CRect(2, 2, 4, 4));
    EXPECT_EQ(canvas.at(10, 12), red);
    EXPECT_EQ(canvas.at(13, 15), red);
    EXPECT_EQ(canvas.at(9, 12), SCanvas::background);
    EXPECT_EQ(canvas.at(14, 15), SCanvas::background);
    EXPECT_EQ(canvas.at(2, 2), SCanvas::background);
}

TEST(CGraphics, AnAlphaSectionIsShiftedByTheDrawingOffset) {
    SCanvas canvas;
    CGraphics &graphics = canvas.graphics;
    graphics.setDrawingOffset(CPoint(20, 10));
    graphics.beginAlphaDrawing(1.0);
    graphics.getBrush().setColour(redColour);
    graphics.fillRectangle(CRect(0, 0, 4, 4));
    graphics.endAlphaDrawing(CRect(2, 1, 4, 4), CRect(0, 0, 4, 4));
    EXPECT_EQ(canvas.at(22, 11), red);
    EXPECT_EQ(canvas.at(25, 14), red);
    EXPECT_EQ(canvas.at(21, 11), SCanvas::background);
    EXPECT_EQ(canvas.at(2, 1), SCanvas::background);
}

TEST(CGraphics, APaintingEndsAnOpenAlphaSection) {
    SCanvas canvas;
    canvas.graphics.beginAlphaDrawing(0.5);
    canvas.graphics.initialise(canvas.target.get(), {40, 30});
    canvas.graphics.getBrush().setColour(redColour);
    canvas.graphics.fillRectangle(CRect(0, 0, 1, 1));
    EXPECT_EQ(canvas.at(0, 0), red);
}

TEST(CGraphics, StoresAnyAntiAliasModeWhilePainting) {
    SCanvas canvas;
    EXPECT_EQ(canvas.graphics.getAntiAliasMode(), 1);
    for (const int mode : {0, 2, 7, -3}) {
        canvas.graphics.setAntiAliasMode(mode);
        EXPECT_EQ(canvas.graphics.getAntiAliasMode(), mode);
    }
    canvas.graphics.uninitialise();
    canvas.graphics.setAntiAliasMode(1);
    EXPECT_EQ(canvas.graphics.getAntiAliasMode(), -3) << "no painting is open";
}

TEST(CGraphics, EachPaintingStartsWithoutSmoothing) {
    SCanvas plain, smoothed;
    smoothed.graphics.setAntiAliasMode(2);
    smoothed.graphics.initialise(smoothed.target.get(), {40, 30});
    for (SCanvas *canvas : {&plain, &smoothed}) {
        canvas->graphics.getBrush().setColour(redColour);
        canvas->graphics.fillEllipse(CRect(3, 3, 21, 17));
    }
    EXPECT_TRUE(pictureOf(plain.picture()).pixels == pictureOf(smoothed.picture()).pixels);
}

TEST(CGraphics, ShiftsEverythingByTheDrawingOffset) {
    SCanvas shifted, straight;
    shifted.graphics.setDrawingOffset(CPoint(3, -2));
    drawEverything(shifted.graphics);
    drawEverything(straight.graphics);
    int drawn = 0;
    // The gradient starts at the origin in both, and the blended section does not move; what lies
    // inside is compared.
    for (int y = 2; y < 28; ++y)
        for (int x = 0; x < 36; ++x) {
            ASSERT_EQ(shifted.at(x + 3, y - 2), straight.at(x, y)) << x << ", " << y;
            drawn += straight.at(x, y) != SCanvas::background ? 1 : 0;
        }
    EXPECT_GT(drawn, 100);
}

}  // namespace
