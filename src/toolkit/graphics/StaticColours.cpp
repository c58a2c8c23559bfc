#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::GUI::Basics::StaticColours {

const CColour black(0, 0, 0);
const CColour white(255, 255, 255);

const CAlphaColour alphaTransparent(0, 0, 0, 0);
const CAlphaColour alphaBlack(0, 0, 0);
const CAlphaColour alphaWhite(255, 255, 255);
const CAlphaColour alphaRed(243, 32, 32);
const CAlphaColour alphaGreen(102, 200, 85);
const CAlphaColour alphaBlue(85, 86, 200);
const CAlphaColour alphaYellow(219, 230, 49);
const CAlphaColour alphaOrange(239, 149, 41);
const CAlphaColour alphaTeal(116, 184, 188);
const CAlphaColour alphaPurple(153, 116, 188);
const CAlphaColour alphaPink(226, 74, 160);
const CAlphaColour alphaLightGrey(208, 208, 208);
const CAlphaColour alphaDarkGrey(147, 147, 147);

}  // namespace Tessitor::GUI::Basics::StaticColours
