#pragma once

#include "toolkit/graphics/CGraphics.h"

#include <functional>

namespace Tessitor::GUI::Graphics {

/// Paints a part of a window: draws into an off-screen image of the window's size, with the dirty
/// rectangle as clip and update area, then copies that rectangle to the window. The image is freed
/// even if the drawing throws. [gui thread]
/// @param window      receives the picture.
/// @param drawWindow  draws the window's contents.
void paintWindow(CGraphics &graphics, INativePaintTarget &window, const MathTools::CDimension &size,
                 const MathTools::CRect &dirty, const std::function<void(CGraphics &)> &drawWindow);

}  // namespace Tessitor::GUI::Graphics
