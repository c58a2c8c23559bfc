#pragma once

#include "TestImage.h"
#include "toolkit/graphics/Painting.h"

/// Paints a small window again and again, with an operation of each kind.
inline void paintManyTimes(int paintings) {
    using namespace Tessitor::MathTools;
    const auto window = createNativeSurface(nullptr, 60, 40, {});
    Tessitor::GUI::Graphics::CGraphics graphics;
    Tessitor::GUI::Fonts::CFont font("Arial", 11, false, false);
    CTestImage image(20, 40, true);
    const CRect all(0, 0, 60, 40), shape(5, 5, 40, 30);
    for (int i = 0; i < paintings; ++i)
        Tessitor::GUI::Graphics::paintWindow(
            graphics, *window, CDimension(60, 40), all,
            [&](Tessitor::GUI::Graphics::CGraphics &inside) {
                inside.getPen().setWidthAndColour(1 + i % 3, {i % 256, 0, 0});
                inside.getBrush().setColour({0, i % 256, 0, 200});
                inside.setAntiAliasMode(i % 3);
                inside.getClip().setClipRegion(shape);
                inside.drawFilledBorderedRectangle(shape);
                inside.fillEllipse(shape);
                inside.drawRoundedRectangle(shape, CDimension(6, 6));
                inside.drawAntiAliasedLine(CPoint(0, 0), CPoint(50, 30));
                inside.drawImage(&image, CRect(9, 9, 20, 20), CRect(0, 20, 20, 20), 0.5);
                inside.drawText("text", shape, &font, i % 11);
                inside.beginAlphaDrawing(0.5);
                inside.drawLine(CPoint(0, 0), CPoint(50, 30));
                inside.endAlphaDrawing(shape, shape);
                inside.getClip().resetClip();
            });
}
