#include "Scenes.h"

#include "TestImage.h"

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CPolygon;
using Tessitor::MathTools::CRect;

namespace {

const CAlphaColour orange(250, 140, 20), leaf(20, 250, 140), violet(140, 20, 250);
// The same three channels in turn
const CAlphaColour *const turned[] = {&orange, &leaf, &violet};

CPolygon polygon(std::initializer_list<CPoint> points) {
    CPolygon result(0);
    for (const CPoint &point : points)
        result.addPoint(point);
    return result;
}

/// A star whose lines cross, so that the even-odd rule shows
CPolygon star() {
    return polygon({{24, 4}, {38, 46}, {2, 20}, {46, 20}, {10, 46}, {24, 4}});
}

// One of each size that a rectangle can have, with turned colours
template <typename Draw>
void eachRectangle(CGraphics &graphics, Draw draw) {
    const CRect rects[] = {{2, 2, 20, 14},   {26, 2, 9, 9},   {40, 2, 1, 10},   {44, 2, 10, 1},
                           {58, 2, 2, 2},    {64, 2, 1, 1},   {70, 2, 3, 2},    {2, 22, 0, 10},
                           {10, 22, 10, 0},  {24, 22, 0, 0},  {80, -5, 30, 20}, {60, 40, 31, 17},
                           {-6, 44, 16, 30}, {14, 30, 33, 30}};
    int index = 0;
    for (const CRect &rect : rects) {
        graphics.getPen().setColour(*turned[index % 3]);
        graphics.getBrush().setColour(*turned[(index + 1) % 3]);
        draw(rect);
        ++index;
    }
}

void fan(CGraphics &graphics) {
    const CPoint centre(40, 32);
    for (int i = 0; i <= 24; i += 4) {
        graphics.getPen().setColour(*turned[i / 4 % 3]);
        graphics.drawLine(centre, CPoint(28 + i, 6));
        graphics.drawLine(centre, CPoint(28 + i, 58));
        graphics.drawLine(centre, CPoint(12, 20 + i));
        graphics.drawLine(centre, CPoint(70, 20 + i));
    }
}

void drawPixels(CGraphics &graphics) {
    for (int i = 0; i < 30; ++i) {
        graphics.getPen().setColour(*turned[i % 3]);
        graphics.drawPixel(CPoint(3 * i, 2 * i));
    }
    graphics.drawPixel(CPoint(-1, 5));
    graphics.drawPixel(CPoint(5, sceneHeight));
}

void drawBlendedPixels(CGraphics &graphics) {
    for (int i = 0; i < 64; ++i) {
        graphics.getPen().setColour(*turned[i % 3]);
        graphics.drawAntiAliasedPixel(CPoint(i + 8, i), 4 * i);
    }
}

void drawLines(CGraphics &graphics) {
    fan(graphics);
    graphics.getPen().setColour(violet);
    graphics.moveTo(CPoint(74, 4));
    graphics.drawLineTo(CPoint(90, 4));
    graphics.drawLineTo(CPoint(90, 20));
    graphics.drawLineTo(CPoint(74, 4));
    graphics.drawLine(CPoint(80, 40), CPoint(80, 40));
}

void drawWideLines(CGraphics &graphics) {
    for (int width = 2; width <= 4; ++width) {
        graphics.getPen().setWidthAndColour(width, *turned[width % 3]);
        graphics.drawLine(CPoint(6, 12 * width - 12), CPoint(40, 12 * width - 12));
        graphics.drawLine(CPoint(12 * width + 30, 6), CPoint(12 * width + 30, 50));
    }
}

void drawRectangles(CGraphics &graphics) {
    eachRectangle(graphics, [&](const CRect &rect) { graphics.drawRectangle(rect); });
}

void drawRoundedRectangles(CGraphics &graphics) {
    eachRectangle(graphics, [&](const CRect &rect) {
        graphics.drawRoundedRectangle(rect, CDimension(8, 6));
    });
}

void drawPolygons(CGraphics &graphics) {
    graphics.getPen().setColour(orange);
    graphics.drawPolygon(star());
    graphics.getPen().setColour(leaf);
    graphics.drawPolygon(polygon({{60, 10}, {80, 10}, {80, 30}}));
    graphics.drawPolygon(polygon({{70, 50}}));
    graphics.drawLineTo(CPoint(90, 55));  // from the only point of the last polygon
}

void drawArcs(CGraphics &graphics) {
    const CRect left(4, 4, 40, 30), right(50, 4, 40, 30), low(20, 38, 50, 22);
    graphics.getPen().setColour(orange);
    graphics.drawArc(left, CPoint(24, 0), CPoint(50, 19), true);
    graphics.getPen().setColour(leaf);
    graphics.drawArc(right, CPoint(70, 0), CPoint(96, 19), false);
    graphics.getPen().setColour(violet);
    graphics.drawArc(low, CPoint(20, 38), CPoint(70, 60), true);
}

void drawEllipses(CGraphics &graphics) {
    eachRectangle(graphics, [&](const CRect &rect) { graphics.drawEllipse(rect); });
}

void fillRectangles(CGraphics &graphics) {
    eachRectangle(graphics, [&](const CRect &rect) { graphics.fillRectangle(rect); });
}

void fillTranslucentRectangles(CGraphics &graphics) {
    for (int i = 0; i < 8; ++i) {
        CAlphaColour colour = *turned[i % 3];
        colour.setAlpha(36 * i);
        graphics.getBrush().setColour(colour);
        graphics.fillRectangle(CRect(10 * i, 6 * i, 20, 20));
    }
}

void fillRoundedRectangles(CGraphics &graphics) {
    graphics.getBrush().setColour(orange);
    graphics.fillRoundedRectangle(CRect(4, 4, 40, 24), CDimension(10, 10));
    graphics.getBrush().setColour(leaf);
    graphics.fillRoundedRectangle(CRect(50, 4, 40, 24), CDimension(20, 8));
    graphics.getBrush().setColour(violet);
    graphics.fillRoundedRectangle(CRect(10, 34, 76, 26), CDimension(26, 26));
}

void fillEllipses(CGraphics &graphics) {
    graphics.getBrush().setColour(orange);
    graphics.fillEllipse(CRect(4, 4, 30, 30));
    graphics.getBrush().setColour(leaf);
    graphics.fillEllipse(CRect(40, 6, 51, 17));
    graphics.getBrush().setColour(violet);
    graphics.fillEllipse(CRect(36, 28, 11, 32));
    graphics.fillEllipse(CRect(60, 34, 24, 24));
}

void fillPolygons(CGraphics &graphics) {
    graphics.getBrush().setColour(orange);
    graphics.fillPolygon(star());
    graphics.getBrush().setColour(leaf);
    graphics.fillPolygon(polygon({{54, 8}, {90, 8}, {72, 32}}));
    graphics.getBrush().setColour(violet);
    graphics.fillPolygon(polygon({{56, 40}, {84, 40}, {84, 58}, {56, 58}}));
}

void drawBorderedRectangles(CGraphics &graphics) {
    graphics.getPen().setColour(orange);
    graphics.getBrush().setColour(leaf);
    graphics.drawFilledBorderedRectangle(CRect(4, 4, 26, 22));
    graphics.drawRaisedRectangle(CRect(36, 4, 26, 22));
    graphics.drawSunkenRectangle(CRect(66, 4, 26, 22));
    // The colours are still those that were set.
    graphics.drawFilledBorderedRectangle(CRect(4, 34, 26, 22));
}

void drawGradients(CGraphics &graphics) {
    graphics.getPen().setColour(violet);
    graphics.drawGradient(CRect(10, 10, 60, 41));
    graphics.setDrawingOffset(CPoint(64, 20));
    graphics.getPen().setColour(leaf);
    graphics.drawGradient(CRect(0, 0, 20, 24));
    graphics.drawGradient(CRect(0, 0, 30, 1));
}

void drawImages(CGraphics &graphics) {
    CTestImage frames(24, 72, true), opaque(20, 20, false);
    for (int frame = 0; frame < 3; ++frame)
        graphics.drawImage(&frames, CRect(2 + 26 * frame, 2, 24, 24), CRect(0, 24 * frame, 24, 24));
    graphics.drawImage(&frames, CRect(2, 30, 24, 24), CRect(0, 24, 24, 24), 0.5);
    graphics.drawImage(&frames, CRect(28, 30, 12, 30), CRect(0, 0, 24, 24));   // scaled
    graphics.drawImage(&frames, CRect(80, 4, 24, 24), CRect(0, 60, 24, 24));   // outside: not drawn
    graphics.drawImage(&opaque, CRect(44, 30, 20, 20), CRect(0, 0, 20, 20));   // as it is
    graphics.drawImage(&opaque, CRect(66, 30, 20, 20), CRect(10, 5, 20, 20));  // a part of it
    graphics.drawImage(&opaque, CRect(88, 30, 10, 30), CRect(0, 0, 10, 10));   // enlarged
}

void drawAlphaSections(CGraphics &graphics) {
    graphics.getPen().setColour(orange);
    graphics.getBrush().setColour(leaf);
    graphics.drawFilledBorderedRectangle(CRect(2, 2, 40, 40));
    graphics.beginAlphaDrawing(0.5);
    graphics.getBrush().setColour(violet);
    graphics.fillRectangle(CRect(10, 10, 60, 40));
    graphics.drawLine(CPoint(0, 0), CPoint(90, 60));
    graphics.endAlphaDrawing(CRect(20, 5, 60, 50), CRect(20, 5, 60, 50));
    // In the colours from before the section
    graphics.drawFilledBorderedRectangle(CRect(76, 44, 14, 14));
}

void drawClippedAndShifted(CGraphics &graphics) {
    graphics.getClip().setClipRegion(CRect(10, 8, 50, 40));
    graphics.setDrawingOffset(CPoint(5, 3));
    fan(graphics);
    graphics.getBrush().setColour(leaf);
    graphics.fillRectangle(CRect(-20, 30, 40, 40));
    graphics.fillPolygon(polygon({{40, 25}, {80, 30}, {50, 60}}));
    CTestImage frames(24, 72, true);
    graphics.drawImage(&frames, CRect(0, 0, 24, 24), CRect(0, 0, 24, 24));
    graphics.drawRoundedRectangle(CRect(8, 10, 60, 20), CDimension(6, 6));
    graphics.getClip().setClipRegion(CRect(70, 40, 20, 100));
    graphics.getBrush().setColour(orange);
    graphics.fillRectangle(CRect(0, 0, 96, 64));
    graphics.getClip().setClipRegion(CRect(64, 20, 0, 10));
    graphics.fillRectangle(CRect(0, 0, 96, 64));  // an empty clip shows nothing
}

void drawSmoothLines(CGraphics &graphics) {
    for (int i = 0; i <= 24; i += 8) {
        graphics.getPen().setColour(*turned[i / 8 % 3]);
        graphics.drawAntiAliasedLine(CPoint(40, 32), CPoint(28 + i, 6));
        graphics.drawAntiAliasedLine(CPoint(40, 32), CPoint(28 + i, 58));
        graphics.drawAntiAliasedLine(CPoint(40, 32), CPoint(12, 20 + i));
        graphics.drawAntiAliasedLine(CPoint(40, 32), CPoint(70, 20 + i));
    }
    graphics.drawAntiAliasedPolygon(polygon({{74, 6}, {92, 10}, {80, 26}}));
    graphics.drawAntiAliasedPolygon(polygon({{74, 40}, {92, 60}}));  // too few points
}

void drawAntiAliased(CGraphics &graphics) {
    graphics.setAntiAliasMode(2);
    drawSmoothLines(graphics);
}

void drawWideAntiAliased(CGraphics &graphics) {
    graphics.setAntiAliasMode(2);
    graphics.getPen().setWidthAndColour(5, orange);
    graphics.drawAntiAliasedLine(CPoint(10, 10), CPoint(80, 20));
    graphics.drawAntiAliasedLine(CPoint(10, 30), CPoint(80, 30));
    graphics.getPen().setWidthAndColour(3, leaf);
    graphics.drawAntiAliasedLine(CPoint(20, 40), CPoint(30, 60));
    graphics.drawRectangle(CRect(50, 40, 30, 18));
}

void fillAntiAliasedRounded(CGraphics &graphics) {
    graphics.setAntiAliasMode(2);
    fillRoundedRectangles(graphics);
}

void fillAntiAliasedEllipses(CGraphics &graphics) {
    graphics.setAntiAliasMode(0);
    fillEllipses(graphics);
}

void fillAntiAliasedPolygons(CGraphics &graphics) {
    graphics.setAntiAliasMode(2);
    fillPolygons(graphics);
    graphics.setAntiAliasMode(1);
    graphics.getBrush().setColour(orange);
    graphics.fillEllipse(CRect(40, 40, 12, 12));
}

void drawAlignedTexts(CGraphics &graphics) {
    CFont font("Arial", 11, false, false);
    for (int alignment = 0; alignment < 9; ++alignment) {
        const CRect rect(alignment % 3 * 32, alignment / 3 * 21, 32, 21);
        graphics.setTextColour(*turned[alignment % 3]);
        graphics.drawText("Abg", rect, &font, alignment);
    }
}

void drawShiftedText(CGraphics &graphics) {
    CFont font("Arial", 16, true, true);
    graphics.setTextColour(CAlphaColour(255, 255, 255));
    graphics.setDrawingOffset(CPoint(10, 20));
    graphics.drawText("Ratio", CRect(0, 0, 80, 24), &font, 10);
}

void drawCutText(CGraphics &graphics) {
    CFont font("Arial", 24, true, false);
    graphics.setTextColour(leaf);
    graphics.drawText("Threshold", CRect(20, 20, 50, 16), &font, 3);
}

void drawLargeText(CGraphics &graphics) {
    CFont font("Arial", 20, false, false);
    graphics.setTextColour(CAlphaColour(255, 255, 255));
    graphics.drawText("-12 dB", CRect(0, 0, 96, 64), &font, 4);
}

constexpr SScene sceneList[] = {
    {"pixels", EMatch::Exact, true, drawPixels},
    {"blended-pixels", EMatch::Exact, true, drawBlendedPixels},
    {"lines", EMatch::Exact, true, drawLines},
    {"wide-lines", EMatch::Exact, true, drawWideLines},
    {"rectangles", EMatch::Exact, true, drawRectangles},
    {"rectangles-plain", EMatch::Exact, false, drawRectangles},
    {"rounded-rectangles", EMatch::Exact, true, drawRoundedRectangles},
    {"polygons", EMatch::Exact, true, drawPolygons},
    {"arcs", EMatch::Exact, true, drawArcs},
    {"ellipses", EMatch::Outline, true, drawEllipses},
    {"fill-rectangles", EMatch::Exact, true, fillRectangles},
    {"fill-rectangles-plain", EMatch::Exact, false, fillRectangles},
    {"fill-translucent", EMatch::Exact, true, fillTranslucentRectangles},
    {"fill-translucent-plain", EMatch::Exact, false, fillTranslucentRectangles},
    {"fill-rounded", EMatch::Smooth, true, fillRoundedRectangles},
    {"fill-rounded-plain", EMatch::Exact, false, fillRoundedRectangles},
    {"fill-ellipses", EMatch::Smooth, true, fillEllipses},
    {"fill-ellipses-plain", EMatch::Exact, false, fillEllipses},
    {"fill-polygons", EMatch::Exact, true, fillPolygons},
    {"fill-polygons-plain", EMatch::Exact, false, fillPolygons},
    {"bordered", EMatch::Exact, true, drawBorderedRectangles},
    {"gradients", EMatch::Exact, true, drawGradients},
    {"images", EMatch::Exact, true, drawImages},
    {"alpha-sections", EMatch::Exact, true, drawAlphaSections},
    {"clip-and-offset", EMatch::Exact, true, drawClippedAndShifted},
    {"smooth-lines", EMatch::Exact, true, drawSmoothLines},
    {"smooth-lines-plain", EMatch::Exact, false, drawSmoothLines},
    {"anti-aliased-lines", EMatch::Smooth, true, drawAntiAliased},
    {"anti-aliased-wide", EMatch::Smooth, true, drawWideAntiAliased},
    {"anti-aliased-rounded", EMatch::Smooth, true, fillAntiAliasedRounded},
    {"anti-aliased-ellipses", EMatch::Smooth, true, fillAntiAliasedEllipses},
    {"anti-aliased-polygons", EMatch::Smooth, true, fillAntiAliasedPolygons},
    {"text-aligned", EMatch::TextGrid, true, drawAlignedTexts},
    {"text-aligned-plain", EMatch::TextGrid, false, drawAlignedTexts},
    {"text-shifted", EMatch::Text, true, drawShiftedText},
    {"text-cut", EMatch::Text, true, drawCutText},
    {"text-large", EMatch::Text, true, drawLargeText},
};

}  // namespace

std::span<const SScene> scenes() {
    return sceneList;
}
