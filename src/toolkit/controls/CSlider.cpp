#include "toolkit/controls/CSlider.h"

#include "toolkit/controls/IControlRoot.h"
#include "toolkit/controls/Positions.h"
#include "toolkit/graphics/CGraphics.h"
#include "toolkit/graphics/StaticColours.h"
#include "values/Truncation.h"

#include <algorithm>

namespace Tessitor::GUI::Controls {

using Events::CMouseEvent;
using Graphics::CGraphics;
using Graphics::IImage;
using MathTools::CPoint;
using MathTools::CRect;

Tessitor::Basics::TClassRecord<CSlider> CSlider::s_class("CSlider", "CControl");

CSlider::CSlider(IControlRoot *root, std::int32_t id, const CRect &area,
                 Listeners::IActionListener *listener)
    : CControl(root, id, area, listener) {
    chooseOrientation();
    layOut();
    s_class.incrementInstanceCount();
}

// Events

void CSlider::handleLeftButtonDown(CMouseEvent &event) {
    const CPoint position = event.getMousePosition();
    if (!isOverHandle(event)) {
        moveHandle(std::int64_t{along(position)} - handleLength() / 2);
        sendActionEvent();
    }
    getControlRoot()->lockControl(this);
    m_grabOffset = positionInside(m_handleArea, position);
    m_isDragging = true;
    m_handleState = EHandleState::Pressed;
    update();
}

void CSlider::handleMouseMovement(CMouseEvent &event) {
    if (!m_isDragging) {
        checkHover(event);
        return;
    }
    const std::int32_t position = along(event.getMousePosition());
    if (position < 0)
        return;
    moveHandle(std::int64_t{position} - along(m_grabOffset));
    sendActionEvent();
    update();
}

void CSlider::handleLeftButtonUp(CMouseEvent &event) {
    const bool isOver = isOverHandle(event);
    m_handleState = isOver ? EHandleState::MouseOver : EHandleState::Normal;
    m_isDragging = false;
    m_grabOffset.setPoint(0, 0);
    update();
    if (!isOver)
        getControlRoot()->unlockControl();
}

void CSlider::handleMouseScroll(CMouseEvent &event) {
    const std::int32_t step = event.isShiftDown() ? 1 : 5;
    const std::int32_t position = along(originOf(m_handleArea));
    moveHandle(std::int64_t{position} + (event.getWheelAmount() > 0.0 ? -step : step));
    sendActionEvent();
    checkHover(event);
    update();
}

void CSlider::handleMouseLeaving(CMouseEvent &) {
    if (!m_isDragging)
        m_handleState = EHandleState::Normal;
    update();
}

void CSlider::checkHover(const CMouseEvent &event) {
    const EHandleState before = m_handleState;
    m_handleState = isOverHandle(event) ? EHandleState::MouseOver : EHandleState::Normal;
    if (m_handleState != before)
        update();
}

bool CSlider::isOverHandle(const CMouseEvent &event) const {
    return m_handleArea.pointIsInside(event.getMousePosition());
}

// The handle

void CSlider::setValue(double value) {
    CControl::setValue(value);
    if (value >= 0.0 && value <= 1.0) {
        placeHandleByValue();
        update();
    }
}

void CSlider::setArea(const CRect &area) {
    const bool isFirstArea = getDimension().getWidth() == 0 && getDimension().getHeight() == 0;
    CControl::setArea(area);
    if (isFirstArea)
        chooseOrientation();
    layOut();
}

void CSlider::setPrimaryImage(IImage *image) {
    CControl::setPrimaryImage(image);
    layOut();
}

void CSlider::chooseOrientation() {
    m_isVertical = getDimension().getWidth() <= getDimension().getHeight();
}

// The handle is as large as its picture, or else as wide as the slider and half as long, and in the
// middle across the slider.
void CSlider::layOut() {
    const std::int32_t width = getDimension().getWidth(), height = getDimension().getHeight();
    if (const IImage *image = getPrimaryImage()) {
        m_handleArea.setRect(0, 0, image->getImageSize().getWidth() / 3,
                             image->getImageSize().getHeight());
    } else if (m_isVertical) {
        m_handleArea.setRect(0, 0, width, width / 2);
    } else {
        m_handleArea.setRect(0, 0, height / 2, height);
    }
    m_handleImageArea = m_handleArea;
    if (m_isVertical)
        m_handleArea.setLeft((width - m_handleArea.getWidth()) / 2);
    else
        m_handleArea.setTop((height - m_handleArea.getHeight()) / 2);
    m_range = std::max(0, (m_isVertical ? height : width) - handleLength());
    placeHandleByValue();
}

void CSlider::placeHandleByValue() {
    placeHandle(truncated((1.0 - std::clamp(getValue(), 0.0, 1.0)) * m_range));
}

void CSlider::placeHandle(std::int32_t position) {
    if (m_isVertical)
        m_handleArea.setTop(position);
    else
        m_handleArea.setLeft(position);
}

// A slider without room to move keeps its value.
void CSlider::moveHandle(std::int64_t position) {
    const auto end = static_cast<std::int64_t>(m_range);
    placeHandle(static_cast<std::int32_t>(std::clamp<std::int64_t>(position, 0, end)));
    if (m_range > 0.0)
        CControl::setValue(1.0 - along(originOf(m_handleArea)) / m_range);
}

std::int32_t CSlider::handleLength() const {
    return m_isVertical ? m_handleArea.getHeight() : m_handleArea.getWidth();
}

std::int32_t CSlider::along(const CPoint &point) const {
    return m_isVertical ? point.getYPosition() : point.getXPosition();
}

// Drawing

void CSlider::drawControl(CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    if (isDefaultDrawing()) {
        graphics.getBrush().setColour(getBackgroundColour());
        graphics.getPen().setColour(getFrameColour());
        graphics.drawFilledBorderedRectangle(getNormalisedArea());
    }
    drawHandle(graphics);
}

void CSlider::drawHandle(CGraphics &graphics) {
    const auto state = static_cast<std::int32_t>(m_handleState);
    if (getPrimaryImage() != nullptr) {
        m_handleImageArea.setLeft(state * m_handleImageArea.getWidth());
        graphics.drawImage(getPrimaryImage(), m_handleArea, m_handleImageArea);
    } else if (isDefaultDrawing()) {
        using namespace Basics::StaticColours;
        const Basics::CAlphaColour *const fills[] = {&alphaLightGrey, &alphaWhite, &alphaDarkGrey};
        graphics.getBrush().setColour(*fills[state]);
        graphics.getPen().setColour(getFrameColour());
        graphics.drawFilledBorderedRectangle(m_handleArea);
    }
}

}  // namespace Tessitor::GUI::Controls
