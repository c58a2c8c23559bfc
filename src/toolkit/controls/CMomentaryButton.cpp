#include "toolkit/controls/CMomentaryButton.h"

namespace Tessitor::GUI::Controls {

using Events::CMouseEvent;

Tessitor::Basics::TClassRecord<CMomentaryButton> CMomentaryButton::s_class("CMomentaryButton",
                                                                           "CControl");

CMomentaryButton::CMomentaryButton(IControlRoot *root, std::int32_t id,
                                   const MathTools::CRect &area,
                                   Listeners::IActionListener *listener)
    : CButton(root, id, area, listener) {
    s_class.incrementInstanceCount();
}

void CMomentaryButton::handleLeftButtonDown(CMouseEvent &event) {
    CButton::handleLeftButtonDown(event);
    setDown(true);
    update();
}

void CMomentaryButton::handleLeftButtonUp(CMouseEvent &event) {
    CButton::handleLeftButtonUp(event);
    setDown(false);
    update();
    sendActionEvent();
}

void CMomentaryButton::handleMouseMovement(CMouseEvent &event) {
    CButton::handleMouseMovement(event);
    if (isMouseInside(event))
        return;
    setDown(false);
    update();
}

void CMomentaryButton::setValue(double value) {
    CButton::setValue(value);
    setDown(value == 1.0);
    update();
}

}  // namespace Tessitor::GUI::Controls
