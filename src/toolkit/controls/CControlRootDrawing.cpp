// How a root draws its controls.
#include "toolkit/controls/CControlRoot.h"
#include "toolkit/controls/CHeldControl.h"
#include "toolkit/controls/CSavedDrawing.h"
#include "toolkit/controls/Positions.h"

namespace Tessitor::GUI::Controls {

using Graphics::CGraphics;
using MathTools::CRect;

namespace {

/// Nothing is drawn outside the clip that is in force already: a control of a panel stays inside
/// that panel.
void narrowClip(CGraphics &graphics, const CRect &area) {
    CRect clip;
    CRect::getIntersection(graphics.getClip().getClipRegion(), area, clip);
    graphics.getClip().setClipRegion(clip);
}

/// @param area  what is to be drawn, in window coordinates.
void drawIfSeen(CGraphics &graphics, IControl &control, const CRect &area) {
    const CRect place = control.getAbsoluteRect();
    if (!CRect::intersects(place, area))
        return;
    const CSavedDrawing saved(graphics);
    const CHeldControl held(&control);
    narrowClip(graphics, place);
    graphics.setDrawingOffset(originOf(place));
    CRect seen;
    CRect::getIntersection(place, area, seen);
    seen.setOrigin(positionInside(place, originOf(seen)));
    graphics.setUpdateArea(seen);
    control.drawControl(graphics);
}

}  // namespace

void CControlRoot::drawRootControl(CGraphics &graphics) {
    const CSavedDrawing saved(graphics);
    const CRect area = graphics.getUpdateArea();
    drawBackground(graphics, area);
    drawControls(graphics, area);
}

void CControlRoot::drawBackground(CGraphics &graphics, const CRect &area) {
    Graphics::IImage *image = getBackgroundImage();
    if (image == nullptr)
        return;
    // A blended image must not be asked for pixels outside itself.
    CRect part;
    CRect::getIntersection(area, image->getNormalisedImageArea(), part);
    if (part.getWidth() > 0 && part.getHeight() > 0)
        graphics.drawImage(image, part, part);
}

void CControlRoot::drawControls(CGraphics &graphics, const CRect &area) {
    forEachDrawnControl([&](IControl &control) { drawIfSeen(graphics, control, area); });
}

}  // namespace Tessitor::GUI::Controls
