#include "toolkit/controls/CImageLabel.h"

#include "toolkit/events/CDropEvent.h"
#include "toolkit/graphics/CGraphics.h"
#include "toolkit/graphics/CImageManager.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CImageLabel> CImageLabel::s_class("CImageLabel", "CControl");

CImageLabel::CImageLabel(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                         Listeners::IActionListener *listener)
    : CControl(root, id, area, listener) {
    s_class.incrementInstanceCount();
}

void CImageLabel::handleFileDrop(const Events::CDropEvent &event) {
    const Tessitor::Basics::CString *name = event.getFilename(0);
    if (!isDropFileEnabled() || name == nullptr)
        return;
    setPrimaryImage(Graphics::CImageManager::getImageFromFile(*name));
    sendActionEvent();
    update();
}

void CImageLabel::drawControl(Graphics::CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    drawPrimaryImage(graphics, isDefaultDrawing());
    if (isDefaultDrawing()) {
        graphics.getPen().setColour(getFrameColour());
        graphics.drawRectangle(getNormalisedArea());
    }
}

}  // namespace Tessitor::GUI::Controls
