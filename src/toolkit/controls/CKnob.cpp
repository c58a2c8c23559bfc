#include "toolkit/controls/CKnob.h"

#include "foundation/CDouble.h"
#include "foundation/WrappingArithmetic.h"
#include "toolkit/controls/ControlProperties.h"
#include "toolkit/controls/IControlRoot.h"

#include <algorithm>

namespace Tessitor::GUI::Controls {

using Events::CMouseEvent;
using MathTools::CPoint;
using MathTools::wrappedDifference;
using Tessitor::Basics::CDouble;

Tessitor::Basics::TClassRecord<CKnob> CKnob::s_class("CKnob", "CAnimation");

namespace {

using Property = SControlProperty<CKnob>;

template <double (CKnob::*get)() const, void (CKnob::*set)(double)>
constexpr Property number(const char *name) {
    return {name, EDescriptorType::Float,
            [](const CKnob &control, CControlDescriptor &descriptor) {
                descriptor.setValue(new CDouble((control.*get)()));
            },
            [](CKnob &control, const CControlDescriptor &descriptor) {
                return applyValue<CDouble>(
                    descriptor, [&](const CDouble &value) { (control.*set)(value.getValue()); });
            }};
}

constexpr Property properties[] = {
    number<&CKnob::getDefaultValue, &CKnob::setDefaultValue>("Default Value"),
    number<&CKnob::getCoefficient, &CKnob::setCoefficient>("Coefficient"),
};

}  // namespace

CKnob::CKnob(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
             Listeners::IActionListener *listener)
    : CAnimation(root, id, area) {
    CControl::registerActionListener(listener);
    CControl::setMouseEnabled(true);
    s_class.incrementInstanceCount();
}

void CKnob::handleLeftButtonDown(CMouseEvent &event) {
    m_isDragging = true;
    m_clickPosition = event.getMousePosition();
    m_referenceValue = getValue();
    m_coefficient = coarse;
    getControlRoot()->lockControl(this);
}

void CKnob::handleMouseMovement(CMouseEvent &event) {
    // A window that is closed during a drag takes the mouse away.
    m_isDragging = m_isDragging && getControlRoot()->getLockedControl() == this;
    if (!m_isDragging)
        return;
    CPoint distance = event.getMousePosition();
    distance -= m_clickPosition;
    const std::int32_t delta = wrappedDifference(distance.getXPosition(), distance.getYPosition());
    const double coefficient = event.isShiftDown() ? fine : coarse;
    // What has been dragged so far keeps the gain that it had.
    m_referenceValue += (m_coefficient - coefficient) * delta;
    m_coefficient = coefficient;
    changeValue(m_referenceValue + m_coefficient * delta);
}

void CKnob::handleLeftButtonUp(CMouseEvent &) {
    m_isDragging = false;
    m_clickPosition.setPoint(0, 0);
    getControlRoot()->unlockControl();
}

void CKnob::handleMouseScroll(CMouseEvent &event) {
    const double step = event.isShiftDown() ? 0.00625 : 0.025;
    changeValue(getValue() + (event.getWheelAmount() > 0.0 ? step : -step));
}

void CKnob::handleDoubleClick(CMouseEvent &) {
    setValue(m_defaultValue);
    update();
    sendActionEvent();
}

// Without a change, nothing is sent: hosts would record the same value again and again.
void CKnob::changeValue(double value) {
    const double limited = std::clamp(value, 0.0, 1.0);
    if (limited == getValue())
        return;
    setValue(limited);
    update();
    sendActionEvent();
}

// Properties

void CKnob::getDescriptors(DescriptorList &descriptors) const {
    CAnimation::getDescriptors(descriptors);
    addDescriptors(properties, *this, descriptors);
}

bool CKnob::setFromDescriptor(const CControlDescriptor &descriptor) {
    return setFromTable<CAnimation>(properties, *this, descriptor);
}

bool CKnob::getDescriptorValue(CControlDescriptor &descriptor) const {
    return readFromTable<CAnimation>(properties, *this, descriptor);
}

}  // namespace Tessitor::GUI::Controls
