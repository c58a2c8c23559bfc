#include "Pictures.h"

#include "foundation/CPolygon.h"
#include "toolkit/graphics/CRGBAImage.h"

#include <cmath>
#include <functional>
#include <numbers>

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::GUI::Graphics::CRGBAImage;
using Tessitor::GUI::Graphics::IImage;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CRect;

namespace {

const CAlphaColour body(58, 63, 75), ring(239, 149, 41), pointer(245, 245, 245);

IImage *createPicture(int width, int height, const std::function<void(CGraphics &)> &draw) {
    auto *image = new CRGBAImage;
    if (image->initialise(width, height)) {
        constexpr std::int32_t smooth = 2;
        image->getGraphics()->setAntiAliasMode(smooth);
        draw(*image->getGraphics());
        image->uninitialise();
    }
    return image;
}

void setColour(CGraphics &graphics, const CAlphaColour &colour) {
    graphics.getPen().setColour(colour);
    graphics.getBrush().setColour(colour);
}

void drawKnob(CGraphics &graphics, int top, double value) {
    setColour(graphics, body);
    graphics.fillEllipse(CRect(1, top + 1, knobSize - 3, knobSize - 3));
    constexpr double start = 0.75 * std::numbers::pi, turn = 1.5 * std::numbers::pi;
    const double centre = knobSize / 2.0 - 0.5;
    const auto pointAt = [&](double angle, double radius) {
        return CPoint(static_cast<int>(std::lround(centre + radius * std::cos(angle))),
                      static_cast<int>(std::lround(top + centre + radius * std::sin(angle))));
    };
    const double angle = start + turn * value;
    setColour(graphics, ring);
    for (double step = start; step <= angle; step += 0.06) {
        const CPoint dot = pointAt(step, 14.0);
        graphics.fillEllipse(CRect(dot.getXPosition() - 1, dot.getYPosition() - 1, 3, 3));
    }
    setColour(graphics, pointer);
    graphics.drawAntiAliasedLine(pointAt(angle, 3.0), pointAt(angle, 10.0));
}

}  // namespace

IImage *createKnobStrip() {
    return createPicture(knobSize, knobSize * knobFrames, [](CGraphics &graphics) {
        for (int frame = 0; frame < knobFrames; ++frame)
            drawKnob(graphics, frame * knobSize, frame / (knobFrames - 1.0));
    });
}

IImage *createSliderHandles(int width, int height) {
    return createPicture(3 * width, height, [=](CGraphics &graphics) {
        const CAlphaColour fills[] = {body, CAlphaColour(110, 118, 138), ring};
        for (int state = 0; state < 3; ++state) {
            setColour(graphics, fills[state]);
            graphics.fillRoundedRectangle(CRect(state * width, 0, width, height), CDimension(3, 3));
        }
    });
}

IImage *createLamp(bool isOn) {
    return createPicture(48, 24, [=](CGraphics &graphics) {
        setColour(graphics, body);
        graphics.fillRoundedRectangle(CRect(0, 0, 48, 24), CDimension(6, 6));
        setColour(graphics, isOn ? ring : CAlphaColour(96, 104, 122));
        graphics.fillEllipse(CRect(18, 6, 11, 11));
    });
}

IImage *createCross(int width, int height) {
    return createPicture(width, height, [=](CGraphics &graphics) {
        setColour(graphics, CAlphaColour(208, 208, 208));
        graphics.fillRectangle(CRect(0, 0, width, height));
        setColour(graphics, CAlphaColour(150, 150, 150));
        graphics.drawAntiAliasedLine(CPoint(3, 3), CPoint(width - 4, height - 4));
        graphics.drawAntiAliasedLine(CPoint(3, height - 4), CPoint(width - 4, 3));
    });
}
