#pragma once

#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::GUI::Controls {

struct SMenuColours {
    Basics::CAlphaColour text = Basics::StaticColours::alphaBlack;
    Basics::CAlphaColour disabledText = Basics::StaticColours::alphaLightGrey;
    Basics::CAlphaColour separator = Basics::StaticColours::alphaOrange;
    Basics::CAlphaColour pointer = Basics::StaticColours::alphaBlack;  ///< arrow of a sub-menu
    Basics::CAlphaColour frame = Basics::StaticColours::alphaPurple;
    Basics::CAlphaColour selectionFill = Basics::StaticColours::alphaPurple;
};

}  // namespace Tessitor::GUI::Controls
