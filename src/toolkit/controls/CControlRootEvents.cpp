// How a root finds the control that an event is for, and hands it over.
#include "toolkit/controls/CControlRoot.h"
#include "toolkit/controls/CHeldControl.h"
#include "toolkit/controls/Positions.h"
#include "toolkit/events/CDropEvent.h"

namespace Tessitor::GUI::Controls {

using Events::CDropEvent;
using Events::CKeyboardEvent;
using Events::CMouseEvent;

void CControlRoot::handleLeftButtonDown(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleLeftButtonDown);
}

void CControlRoot::handleLeftButtonUp(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleLeftButtonUp);
}

void CControlRoot::handleRightButtonDown(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleRightButtonDown);
}

void CControlRoot::handleRightButtonUp(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleRightButtonUp);
}

void CControlRoot::handleDoubleClick(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleDoubleClick);
}

void CControlRoot::handleMouseScroll(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleMouseScroll, true);
}

void CControlRoot::handleMouseMovement(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleMouseMovement);
}

void CControlRoot::handleMouseLeaving(CMouseEvent &event) {
    dispatch(event, &Listeners::IMouseListener::handleMouseLeaving);
}

// The position is the mouse's own and so moves for the time of the call. A handler may run another
// message of the window: then the position of that later one is restored.
void CControlRoot::dispatch(CMouseEvent &event,
                            void (Listeners::IMouseListener::*handler)(CMouseEvent &),
                            bool isScroll) {
    m_position = event.getMousePosition();
    IControl *target = findMouseTarget();
    if (target == nullptr)
        return;
    const CHeldControl held(target);
    m_mouseEvent.setType(event.getType());
    m_mouseEvent.setMouse(event.getMouse());
    m_mouseEvent.copyModifiers(event);
    m_mouseEvent.setMousePosition(positionInside(target->getArea(), m_position));
    if (isScroll)
        m_mouseEvent.setWheelAmount(event.getWheelAmount());
    (target->*handler)(m_mouseEvent);
    event.setMousePosition(m_position);
    m_lastMouseControl.setPointer(target);
}

IControl *CControlRoot::findMouseTarget() {
    if (IControl *modal = getModalControl())
        return modal->isMouseEnabled() && modal->getArea().pointIsInside(m_position) ? modal
                                                                                     : nullptr;
    return controlIsLocked() ? getLockedControl() : getMouseEnabledControlAtPoint(m_position);
}

bool CControlRoot::handleKeyDown(const CKeyboardEvent &event) {
    return dispatch(event, &Listeners::IKeyboardListener::handleKeyDown);
}

bool CControlRoot::handleKeyUp(const CKeyboardEvent &event) {
    return dispatch(event, &Listeners::IKeyboardListener::handleKeyUp);
}

bool CControlRoot::dispatch(const CKeyboardEvent &event,
                            bool (Listeners::IKeyboardListener::*handler)(const CKeyboardEvent &)) {
    if (IControl *modal = getModalControl()) {
        const CHeldControl held(modal);
        (modal->*handler)(event);
        return false;
    }
    IControl *target = controlIsLocked() ? getLockedControl() : m_lastMouseControl.getPointer();
    if (target == nullptr)
        return false;
    const CHeldControl held(target);
    return (target->*handler)(event);
}

void CControlRoot::handleFileDrop(const CDropEvent &event) {
    IControl *target = findDropTarget(event.getPosition());
    if (target == nullptr)
        return;
    const CHeldControl held(target);
    target->handleFileDrop(
        CDropEvent(event, positionInside(target->getArea(), event.getPosition())));
}

IControl *CControlRoot::findDropTarget(const MathTools::CPoint &point) {
    IControl *modal = getModalControl();
    if (modal != nullptr && modal->isDropFileEnabled() && modal->getArea().pointIsInside(point))
        return modal;
    return getDropFileControlAtPoint(point);
}

}  // namespace Tessitor::GUI::Controls
