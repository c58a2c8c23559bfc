#pragma once

#include "toolkit/graphics/CAlphaColour.h"

/// The colours of the library, so that drawing constructs none. They are static objects of their
/// own source: other static objects must not use them in their constructors.
namespace Tessitor::GUI::Basics::StaticColours {

extern const CColour black;
extern const CColour white;

extern const CAlphaColour alphaTransparent;
extern const CAlphaColour alphaBlack;
extern const CAlphaColour alphaWhite;
extern const CAlphaColour alphaRed;
extern const CAlphaColour alphaGreen;
extern const CAlphaColour alphaBlue;
extern const CAlphaColour alphaYellow;
extern const CAlphaColour alphaOrange;
extern const CAlphaColour alphaTeal;
extern const CAlphaColour alphaPurple;
extern const CAlphaColour alphaPink;
extern const CAlphaColour alphaLightGrey;
extern const CAlphaColour alphaDarkGrey;

}  // namespace Tessitor::GUI::Basics::StaticColours
