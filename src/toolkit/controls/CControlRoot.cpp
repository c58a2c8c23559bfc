#include "toolkit/controls/CControlRoot.h"

#include "foundation/CException.h"
#include "toolkit/controls/CHeldControl.h"
#include "toolkit/controls/Positions.h"
#include "toolkit/events/IWindow.h"
#include "toolkit/graphics/IImage.h"

namespace Tessitor::GUI::Controls {

using Collections::TCountedObjectDeleter;
using Collections::TTreeNode;
using MathTools::CPoint;
using MathTools::CRect;
using Tessitor::Basics::CString;

namespace {

Windowing::IWindow *checked(Windowing::IWindow *window) {
    if (window == nullptr)
        throw Exceptions::CException("Parent window is NULL",
                                     "CControlRoot::CControlRoot(IWindow *)", true);
    return window;
}

auto *controlDeleter() {
    return TCountedObjectDeleter<IControl>::getStaticDeleter();
}

/// @return the first control that wanted() accepts; null if there is none.
template <typename Wanted>
IControl *findFirst(const Collections::TCountedPointerArray<IControl> &controls, Wanted wanted) {
    for (int i = 0; i < controls.getArraySize(); ++i) {
        IControl *control = controls.elementAtIndex(i);
        if (control != nullptr && wanted(*control))
            return control;
    }
    return nullptr;
}

}  // namespace

CControlRoot::CControlRoot(Windowing::IWindow *window)
    : m_modalControl(controlDeleter()), m_lockedControl(controlDeleter()),
      m_lastMouseControl(controlDeleter()),
      m_backgroundImage(TCountedObjectDeleter<Graphics::IImage>::getStaticDeleter()),
      m_parentWindow(checked(window)) {}

void CControlRoot::setParentWindow(Windowing::IWindow *window) {
    m_parentWindow = checked(window);
}

// Unlocking a panel unlocks the roots above it.
void CControlRoot::unlockAll() {
    if (auto *panel = dynamic_cast<CControlRoot *>(getLockedControl()))
        panel->unlockAll();
    else
        unlockControl();
}

// Modal control

void CControlRoot::setModalControl(IControl *control) {
    if (control == nullptr) {
        clearModalControl();
        return;
    }
    const CHeldControl held(control);  // it may be the one that is cleared
    clearModalControl();
    m_modalControl.setPointer(control);
    updateArea(control->getAbsoluteRect());
}

void CControlRoot::clearModalControl() {
    if (getModalControl() == nullptr)
        return;
    const CRect area = getModalControl()->getAbsoluteRect();
    m_modalControl.freePointer();
    updateArea(area);
}

// Finding controls

IControl *CControlRoot::getControlAtPoint(const CPoint &point) {
    return findFirst(m_controls, [&](const IControl &control) {
        return control.getArea().pointIsInside(point);
    });
}

IControl *CControlRoot::getDeepControlAtPoint(const CPoint &point) {
    IControl *control = getControlAtPoint(point);
    auto *panel = dynamic_cast<IControlRoot *>(control);
    return panel != nullptr
               ? panel->getDeepControlAtPoint(positionInside(control->getArea(), point))
               : control;
}

IControl *CControlRoot::getMouseEnabledControlAtPoint(const CPoint &point) {
    return findFirst(m_controls, [&](const IControl &control) {
        return control.isMouseEnabled() && control.getArea().pointIsInside(point);
    });
}

IControl *CControlRoot::getDropFileControlAtPoint(const CPoint &point) {
    return findFirst(m_controls, [&](const IControl &control) {
        return control.isDropFileEnabled() && control.getArea().pointIsInside(point);
    });
}

IControl *CControlRoot::getKeyEnabledControlAtPoint(const CPoint &point) {
    return findFirst(m_controls, [&](const IControl &control) {
        return control.isKeyboardEnabled() && control.getArea().pointIsInside(point);
    });
}

IControl *CControlRoot::getControlByDescription(const CString &description) const {
    return findFirst(m_controls, [&](const IControl &control) {
        return control.getDescription() == description;
    });
}

IControl *CControlRoot::getControlAtIndex(std::int32_t index, bool isIndex) const {
    if (isIndex)
        return m_controls.elementAtIndex(index);
    return findFirst(m_controls,
                     [&](const IControl &control) { return control.getUniqueId() == index; });
}

// Null would be found in the holes.
std::int32_t CControlRoot::getControlIndex(IControl *control) const {
    return control != nullptr ? m_controls.getIndexOfPointer(control) : -1;
}

bool CControlRoot::isControlAttached(IControl *control) const {
    return getControlIndex(control) >= 0;
}

IControl *CControlRoot::connectControl(const CString &description, std::int32_t id,
                                       Listeners::IActionListener *listener,
                                       const Tessitor::Basics::CClass &type) {
    IControl *control = getControlByDescription(description);
    if (control == nullptr || !control->getClass().isTypeOf(type))
        return nullptr;
    control->setUniqueId(id);
    control->registerActionListener(listener);
    return control;
}

void CControlRoot::createTree(TTreeNode<IControl> *tree) {
    for (int i = 0; tree != nullptr && i < m_controls.getArraySize(); ++i) {
        IControl *control = m_controls.elementAtIndex(i);
        if (control == nullptr)
            continue;
        auto *node = new TTreeNode<IControl>(controlDeleter());
        tree->addChild(node);
        node->setValue(control);
        node->setParent(tree);
        if (auto *panel = dynamic_cast<IControlRoot *>(control))
            panel->createTree(node);
    }
}

// The two lists

void CControlRoot::addControl(IControl *control) {
    if (control != nullptr && !isControlAttached(control))
        m_controls.addElement(control);
}

void CControlRoot::removeControl(IControl *control) {
    m_controls.deletePointerAtIndex(getControlIndex(control));
}

void CControlRoot::addExtraControl(IControl *control) {
    if (control != nullptr && getExtraControl(control) == nullptr)
        m_extraControls.addElement(control);
}

IControl *CControlRoot::getExtraControl(IControl *control) const {
    return m_extraControls.isPointerInArray(control) ? control : nullptr;
}

void CControlRoot::removeExtraControl(IControl *control) {
    if (control != nullptr)
        m_extraControls.deletePointerAtIndex(m_extraControls.getIndexOfPointer(control));
}

// Places in the window

void CControlRoot::updateControl(std::int32_t id) {
    updateControl(getControlAtIndex(id, false));
}

void CControlRoot::updateControl(IControl *control) {
    if (control == nullptr)
        return;
    CPoint origin;
    getWindowCoordinatesOfControl(control, origin);
    updateArea(CRect(origin, control->getDimension()));
}

void CControlRoot::updateArea(const CRect &area) {
    m_parentWindow->redrawWindow(area);
}

void CControlRoot::getGlobalCoordinatesOfControl(IControl *control, CPoint &point) const {
    if (control == nullptr)
        return;
    getWindowCoordinatesOfControl(control, point);
    point += m_parentWindow->getWindowPosition();
}

void CControlRoot::getWindowCoordinatesOfControl(IControl *control, CPoint &point) const {
    if (control == nullptr)
        return;
    point = originOf(control->getArea());
    point += getWindowOffset();
}

}  // namespace Tessitor::GUI::Controls
