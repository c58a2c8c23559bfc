#include "toolkit/graphics/SCanvas.h"

#include <gtest/gtest.h>

namespace {

// Here only: Wine 8 smooths no shapes.
TEST(CGraphics, SmoothsShapesInTwoOfThreeModes) {
    for (const int mode : {0, 1, 2}) {
        SCanvas canvas;
        canvas.graphics.setAntiAliasMode(mode);
        canvas.graphics.fillEllipse(Tessitor::MathTools::CRect(3, 3, 21, 17));
        bool hasShades = false;
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x) {
                const SNativeColour pixel = canvas.at(x, y);
                hasShades |= pixel != SCanvas::background && pixel != SNativeColour{255, 255, 255};
            }
        EXPECT_EQ(hasShades, mode != 1) << mode;
    }
}

}  // namespace
