#include "toolkit/controls/CControlPanel.h"

#include "toolkit/controls/ChildNodes.h"
#include "toolkit/controls/Positions.h"
#include "toolkit/graphics/CGraphics.h"

namespace Tessitor::GUI::Controls {

using MathTools::CPoint;
using MathTools::CRect;

Tessitor::Basics::TClassRecord<CControlPanel> CControlPanel::s_class("CControlPanel", "CControl");

CControlPanel::CControlPanel(Windowing::IWindow *window, IControlRoot *root, std::int32_t id,
                             const CRect &area, Listeners::IActionListener *listener)
    : CControlRoot(window), CControl(root, id, area, listener) {
    s_class.incrementInstanceCount();
}

CControlPanel::~CControlPanel() {
    s_class.decrementInstanceCount();
}

// Events

void CControlPanel::handleLeftButtonDown(Events::CMouseEvent &event) {
    CControlRoot::handleLeftButtonDown(event);
}

void CControlPanel::handleLeftButtonUp(Events::CMouseEvent &event) {
    CControlRoot::handleLeftButtonUp(event);
}

void CControlPanel::handleRightButtonDown(Events::CMouseEvent &event) {
    CControlRoot::handleRightButtonDown(event);
}

void CControlPanel::handleRightButtonUp(Events::CMouseEvent &event) {
    CControlRoot::handleRightButtonUp(event);
}

void CControlPanel::handleDoubleClick(Events::CMouseEvent &event) {
    CControlRoot::handleDoubleClick(event);
}

void CControlPanel::handleMouseScroll(Events::CMouseEvent &event) {
    CControlRoot::handleMouseScroll(event);
}

void CControlPanel::handleMouseMovement(Events::CMouseEvent &event) {
    CControlRoot::handleMouseMovement(event);
}

void CControlPanel::handleMouseLeaving(Events::CMouseEvent &event) {
    CControlRoot::handleMouseLeaving(event);
}

bool CControlPanel::handleKeyDown(const Events::CKeyboardEvent &event) {
    return CControlRoot::handleKeyDown(event);
}

bool CControlPanel::handleKeyUp(const Events::CKeyboardEvent &event) {
    return CControlRoot::handleKeyUp(event);
}

void CControlPanel::handleFileDrop(const Events::CDropEvent &event) {
    CControlRoot::handleFileDrop(event);
}

void CControlPanel::lockControl(IControl *control) {
    CControlRoot::lockControl(control);
    getControlRoot()->lockControl(this);
}

// Unlocking may destroy the panel.
void CControlPanel::unlockControl() {
    CControlRoot::unlockControl();
    getControlRoot()->unlockControl();
}

// The controls inside

CPoint CControlPanel::getWindowOffset() const {
    return originOf(getAbsoluteRect());
}

IControl *CControlPanel::getDeepControlAtPoint(const CPoint &point) {
    IControl *control = CControlRoot::getDeepControlAtPoint(point);
    return control != nullptr ? control : this;
}

void CControlPanel::addControl(IControl *control) {
    if (control == nullptr)
        return;
    control->setControlRoot(this);
    control->setParentControl(this);
    CControlRoot::addControl(control);
}

void CControlPanel::setArea(const CRect &area) {
    CControl::setArea(area);
    // Their absolute areas move with the panel.
    forEachDrawnControl([](IControl &control) { control.setArea(control.getArea()); });
}

void CControlPanel::enableControl() {
    CControl::enableControl();
    forEachControl([](IControl &control) { control.enableControl(); });
}

void CControlPanel::disableControl() {
    CControl::disableControl();
    forEachControl([](IControl &control) { control.disableControl(); });
}

void CControlPanel::drawControl(Graphics::CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    CRect area = graphics.getUpdateArea();
    if (getBackgroundImage() == nullptr)
        drawPrimaryImage(graphics, isDefaultDrawing());
    drawBackground(graphics, area);
    area.offset(getWindowOffset());
    drawControls(graphics, area);
}

// XML

void CControlPanel::serialiseToXml(IO::CXMLNode *node) const {
    if (node == nullptr)
        return;
    CControl::serialiseToXml(node);
    CControlRoot::serialiseToXml(&addChildNode(*node, "controls"));
}

bool CControlPanel::serialiseFromXml(IO::CXMLNode *node) {
    return CControl::serialiseFromXml(node) &&
           CControlRoot::serialiseFromXml(node->getChild("controls"));
}

}  // namespace Tessitor::GUI::Controls
