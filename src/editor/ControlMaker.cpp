#include "editor/ControlMaker.h"

#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::Corvel {

using GUI::Basics::CAlphaColour;
using GUI::Controls::CClickableKnob;
using GUI::Controls::CTextLabel;
using GUI::Controls::IControlRoot;
using MathTools::CRect;

namespace {

std::int32_t numberOfFrames(EImageSlot image) {
    switch (image) {
    case kDelayTypeImage:
        return 3;
    case kStereoModeImage:
        return 4;
    case kModulationImage:
        return 11;
    default:
        return 63;
    }
}

}  // namespace

CTextLabel *addLabel(IControlRoot &root, std::int32_t x, std::int32_t y, const char *text,
                     const CAlphaColour &background, const CAlphaColour &textColour) {
    auto *label = new CTextLabel(&root, 0, CRect(x, y, labelWidth, labelHeight), text);
    label->setColours(GUI::Basics::StaticColours::alphaRed, background, textColour);
    label->setDrawBackground(false);
    label->setTextFormat(centredAtTop);
    root.addControl(label);
    return label;
}

CClickableKnob *addKnob(IControlRoot &root, long id, std::int32_t x, std::int32_t y,
                        EImageSlot image, bool isDragEnabled,
                        GUI::Listeners::IActionListener *listener) {
    const std::int32_t width = image == kModulationImage ? 2 * frameSize : frameSize;
    const CRect area(centredOnLabel(x, width), y, width, frameSize);
    auto *knob =
        new CClickableKnob(&root, static_cast<std::int32_t>(id), area, listener, isDragEnabled);
    knob->setPrimaryImage(editorImage(image), frameSize, numberOfFrames(image), false);
    root.addControl(knob);
    return knob;
}

}  // namespace Tessitor::Corvel
