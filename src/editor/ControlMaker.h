#pragma once

#include "editor/EditorImages.h"
#include "toolkit/controls/CClickableKnob.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/controls/IControlRoot.h"

namespace Tessitor::Corvel {

inline constexpr std::int32_t labelWidth = 48, labelHeight = 13;
inline constexpr std::int32_t frameSize = 24;    ///< of knobs and buttons
inline constexpr std::int32_t centredAtTop = 1;  ///< the text format of all labels

/// @return the left edge of a control that has the same centre as a label at x.
constexpr std::int32_t centredOnLabel(std::int32_t x, std::int32_t width) {
    return x + (labelWidth - width) / 2;
}

/// Adds a label of 48 by 13 in the default font.
/// @param background  set, but not drawn: only the text shows over the picture.
GUI::Controls::CTextLabel *addLabel(GUI::Controls::IControlRoot &root, std::int32_t x,
                                    std::int32_t y, const char *text,
                                    const GUI::Basics::CAlphaColour &background,
                                    const GUI::Basics::CAlphaColour &textColour);
/// Adds a knob with its filmstrip, centred above its value. It is 24 by 24, or 48 by 24 for the
/// kinds of modulation.
/// @param x              of the label with its value.
/// @param isDragEnabled  false if a click opens a menu instead.
GUI::Controls::CClickableKnob *addKnob(GUI::Controls::IControlRoot &root, long id, std::int32_t x,
                                       std::int32_t y, EImageSlot image, bool isDragEnabled,
                                       GUI::Listeners::IActionListener *listener);
/// Adds a button of 24 by 24 with two images, centred above its value.
/// @param x  of the label with its value.
template <typename Button>
Button *addButton(GUI::Controls::IControlRoot &root, long id, std::int32_t x, std::int32_t y,
                  EImageSlot up, EImageSlot down, GUI::Listeners::IActionListener *listener);

// Definitions

template <typename Button>
Button *addButton(GUI::Controls::IControlRoot &root, long id, std::int32_t x, std::int32_t y,
                  EImageSlot up, EImageSlot down, GUI::Listeners::IActionListener *listener) {
    const MathTools::CRect area(centredOnLabel(x, frameSize), y, frameSize, frameSize);
    auto *button = new Button(&root, static_cast<std::int32_t>(id), area, listener);
    button->setPrimaryImage(editorImage(up));
    button->setDownImage(editorImage(down));
    root.addControl(button);
    return button;
}

}  // namespace Tessitor::Corvel
