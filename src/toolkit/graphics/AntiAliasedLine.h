#pragma once

#include "platform/INativeSurface.h"

namespace Tessitor::GUI::Graphics {

/// Draws a smooth line, one pixel wide, on a surface that has no smooth drawing. Both ends are
/// included. Lines at a multiple of 45 degrees are plain.
///
/// Each step of any other line sets two pixels, the ideal line lying between their centres, with
/// weights that add up to 255. Kept: the weight that a pixel gets depends on whether it is lighter
/// than the colour of the line.
void drawAntiAliasedLine(INativeSurface &surface, SNativePoint from, SNativePoint to,
                         SNativeColour colour);

}  // namespace Tessitor::GUI::Graphics
