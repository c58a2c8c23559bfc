#include "toolkit/controls/CClickableLabel.h"

#include "toolkit/graphics/CGraphics.h"
#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CClickableLabel> CClickableLabel::s_class("CClickableLabel",
                                                                         "CTextLabel");

CClickableLabel::CClickableLabel(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                                 const Tessitor::Basics::CString &text,
                                 Listeners::IActionListener *listener)
    : CTextLabel(root, id, area, text) {
    CControl::registerActionListener(listener);
    CControl::setMouseEnabled(true);
    s_class.incrementInstanceCount();
}

void CClickableLabel::handleLeftButtonDown(Events::CMouseEvent &) {
    sendActionEvent();
}

void CClickableLabel::drawControl(Graphics::CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    drawPrimaryImage(graphics, isDefaultDrawing());
    if (m_isHighlighted) {
        graphics.getBrush().setColour(Basics::StaticColours::alphaLightGrey);
        graphics.fillRectangle(getNormalisedArea());
    }
    drawText(graphics);
}

}  // namespace Tessitor::GUI::Controls
