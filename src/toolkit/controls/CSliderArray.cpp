#include "toolkit/controls/CSliderArray.h"

#include "foundation/WrappingArithmetic.h"
#include "toolkit/controls/IControlRoot.h"
#include "toolkit/graphics/CGraphics.h"
#include "toolkit/graphics/StaticColours.h"
#include "values/Truncation.h"

#include <algorithm>

namespace Tessitor::GUI::Controls {

using Basics::CAlphaColour;
using Events::CMouseEvent;
using MathTools::CPoint;
using MathTools::CRect;
using MathTools::wrappedProduct;
using MathTools::wrappedSum;

Tessitor::Basics::TClassRecord<CSliderArray> CSliderArray::s_class("CSliderArray", "CControl");

CSliderArray::CSliderArray(IControlRoot *root, std::int32_t id, const CRect &area,
                           Listeners::IActionListener *listener)
    : CControl(root, id, area, listener) {
    fillWithBars();
    s_class.incrementInstanceCount();
}

// Events

void CSliderArray::handleLeftButtonDown(CMouseEvent &event) {
    m_isDragging = true;
    dragBar(event);
    getControlRoot()->lockControl(this);
}

void CSliderArray::handleMouseMovement(CMouseEvent &event) {
    if (m_isDragging)
        dragBar(event);
}

void CSliderArray::handleLeftButtonUp(CMouseEvent &) {
    endDrag();
}

void CSliderArray::handleMouseLeaving(CMouseEvent &) {
    endDrag();
}

void CSliderArray::endDrag() {
    if (!m_isDragging)
        return;
    m_isDragging = false;
    update();  // nothing is highlighted any more
    getControlRoot()->unlockControl();
}

void CSliderArray::dragBar(const CMouseEvent &event) {
    const std::int32_t bar = findBar(event.getMousePosition());
    if (bar < 0)
        return;
    const std::int32_t top = event.getMousePosition().getYPosition();
    const std::int32_t height = getDimension().getHeight();
    placeBar(bar, top);
    m_values[static_cast<std::size_t>(bar)] =
        height > 0 ? 1.0 - static_cast<double>(top) / height : 1.0;
    m_lastBar = bar;
    sendActionEvent(event);
    update();
}

/// @return the bar whose whole column holds the point; -1 if there is none.
std::int32_t CSliderArray::findBar(const CPoint &point) const {
    for (std::int32_t i = 0; i < getNumberOfBars(); ++i)
        if (CRect(barLeft(i), 0, m_barWidth, getDimension().getHeight()).pointIsInside(point))
            return i;
    return -1;
}

// The bars

std::int32_t CSliderArray::barLeft(std::int32_t index) const {
    return wrappedProduct(index, wrappedSum(m_barWidth, m_barGap));
}

void CSliderArray::setBars(std::int32_t number, std::int32_t width, std::int32_t gap) {
    const auto size = static_cast<std::size_t>(std::max(number, 0));
    m_barWidth = width;
    m_barGap = gap;
    m_values.assign(size, 1.0);
    m_barRects.assign(size, CRect());
    m_lastBar = -1;
    for (std::int32_t i = 0; i < getNumberOfBars(); ++i)
        placeBarByValue(i);
}

// The width may come from a damaged file.
void CSliderArray::fillWithBars() {
    constexpr std::int32_t most = 1000;
    const std::int32_t fitting =
        wrappedSum(getDimension().getWidth(), m_barGap) / (m_barWidth + m_barGap);
    setBars(std::min(fitting, most), m_barWidth, m_barGap);
}

void CSliderArray::setBarColours(const CAlphaColour &normal, const CAlphaColour &highlight) {
    m_normalColour = normal;
    m_highlightColour = highlight;
}

void CSliderArray::setBarValue(std::int32_t index, double value) {
    if (!hasBar(index))
        return;
    m_values[static_cast<std::size_t>(index)] = value;
    placeBarByValue(index);
    update();
}

double CSliderArray::getBarValue(std::int32_t index) const {
    return hasBar(index) ? m_values[static_cast<std::size_t>(index)] : 0.0;
}

void CSliderArray::setArea(const CRect &area) {
    const bool isFirstArea = getDimension().getWidth() == 0 && getDimension().getHeight() == 0;
    CControl::setArea(area);
    if (isFirstArea && getNumberOfBars() == 0)
        fillWithBars();
    for (std::int32_t i = 0; i < getNumberOfBars(); ++i)
        placeBarByValue(i);
}

void CSliderArray::placeBarByValue(std::int32_t index) {
    placeBar(index, truncated((1.0 - getBarValue(index)) * getDimension().getHeight()));
}

void CSliderArray::placeBar(std::int32_t index, std::int32_t top) {
    m_barRects[static_cast<std::size_t>(index)].setRect(barLeft(index), top, m_barWidth,
                                                        getDimension().getHeight() - top);
}

void CSliderArray::drawControl(Graphics::CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    drawPrimaryImage(graphics, isDefaultDrawing());
    graphics.getPen().setColour(Basics::StaticColours::alphaBlack);
    for (std::int32_t i = 0; i < getNumberOfBars(); ++i) {
        const bool isHighlighted = m_isDragging && i == m_lastBar;
        graphics.getBrush().setColour(isHighlighted ? m_highlightColour : m_normalColour);
        graphics.drawFilledBorderedRectangle(m_barRects[static_cast<std::size_t>(i)]);
    }
}

}  // namespace Tessitor::GUI::Controls
