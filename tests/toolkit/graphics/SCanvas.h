#pragma once

#include "toolkit/graphics/CGraphics.h"

#include <memory>

/// A painting in progress on a small grey surface, for the tests of drawing.
struct SCanvas {
    static constexpr SNativeColour background{70, 80, 96};

    std::unique_ptr<INativeSurface> target = createNativeSurface(nullptr, 40, 30, background);
    Tessitor::GUI::Graphics::CGraphics graphics;

    explicit SCanvas(bool usesSmoothDrawing = true) : graphics(usesSmoothDrawing) {
        graphics.getNativeImage().setBackgroundColour(
            {background.red, background.green, background.blue});
        graphics.initialise(target.get(), {40, 30});
    }
    /// What has been drawn at a point.
    SNativeColour at(int x, int y) { return picture().getPixel({x, y}); }
    INativeSurface &picture() { return *graphics.getNativeImage().getSurface(); }
    /// True if nothing has been drawn.
    bool isBlank() {
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x)
                if (at(x, y) != background)
                    return false;
        return true;
    }
};
