#include "toolkit/controls/CClickableKnob.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CClickableKnob> CClickableKnob::s_class("CClickableKnob", "CKnob");

CClickableKnob::CClickableKnob(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                               Listeners::IActionListener *listener, bool isDragEnabled)
    : CKnob(root, id, area, listener), m_isDragEnabled(isDragEnabled) {
    s_class.incrementInstanceCount();
}

void CClickableKnob::handleLeftButtonDown(Events::CMouseEvent &event) {
    if (m_isDragEnabled)
        CKnob::handleLeftButtonDown(event);
    else
        sendActionEvent();
}

void CClickableKnob::handleLeftButtonUp(Events::CMouseEvent &event) {
    if (m_isDragEnabled)
        CKnob::handleLeftButtonUp(event);
}

}  // namespace Tessitor::GUI::Controls
