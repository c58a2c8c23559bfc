#include "toolkit/controls/CLatchingButton.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CLatchingButton> CLatchingButton::s_class("CLatchingButton",
                                                                         "CControl");

CLatchingButton::CLatchingButton(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                                 Listeners::IActionListener *listener)
    : CButton(root, id, area, listener) {
    s_class.incrementInstanceCount();
}

void CLatchingButton::handleLeftButtonUp(Events::CMouseEvent &event) {
    CButton::handleLeftButtonUp(event);
    setValue(1.0 - getValue());
    update();
    sendActionEvent();
}

void CLatchingButton::setValue(double value) {
    CButton::setValue(value);
    setDown(value >= 0.5);
}

}  // namespace Tessitor::GUI::Controls
