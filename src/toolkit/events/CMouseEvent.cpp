#include "toolkit/events/CMouseEvent.h"

namespace Tessitor::GUI::Events {

Tessitor::Basics::TClassRecord<CMouseEvent> CMouseEvent::s_class("CMouseEvent", "CCountedObject");

void CMouseEvent::setMousePosition(const MathTools::CPoint &position) {
    if (m_mouse != nullptr)
        m_mouse->setPosition(position);
}

MathTools::CPoint CMouseEvent::getMousePosition() const {
    return m_mouse != nullptr ? m_mouse->getPosition() : MathTools::CPoint();
}

void CMouseEvent::setModifiers(bool isControlDown, bool isShiftDown, bool isAltDown) {
    m_isControlDown = isControlDown;
    m_isShiftDown = isShiftDown;
    m_isAltDown = isAltDown;
}

void CMouseEvent::copyModifiers(const CMouseEvent &other) {
    setModifiers(other.m_isControlDown, other.m_isShiftDown, other.m_isAltDown);
}

}  // namespace Tessitor::GUI::Events
