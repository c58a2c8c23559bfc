#include "toolkit/events/CActionEvent.h"

#include "foundation/CException.h"
#include "toolkit/events/CMouseEvent.h"

namespace Tessitor::GUI::Events {

Tessitor::Basics::TClassRecord<CActionEvent> CActionEvent::s_class("CActionEvent",
                                                                   "CCountedObject");

CActionEvent::CActionEvent(Controls::IControl *sender) : m_sender(sender) {
    if (sender == nullptr)
        throw Exceptions::CException("Control is NULL",
                                     "CActionEvent::CActionEvent(IControl *control)", true);
    s_class.incrementInstanceCount();
}

CActionEvent::CActionEvent(Controls::IControl *sender, const CMouseEvent &event)
    : CActionEvent(sender) {
    m_isShiftDown = event.isShiftDown();
    m_isAltDown = event.isAltDown();
    m_isControlDown = event.isControlDown();
}

}  // namespace Tessitor::GUI::Events
