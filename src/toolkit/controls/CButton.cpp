#include "toolkit/controls/CButton.h"

#include "toolkit/controls/IControlRoot.h"
#include "toolkit/events/CCursor.h"
#include "toolkit/graphics/CGraphics.h"

namespace Tessitor::GUI::Controls {

using Events::CMouseEvent;
using Graphics::CGraphics;
using Graphics::IImage;
using Windowing::CCursor;

CButton::CButton(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                 Listeners::IActionListener *listener)
    : CControl(root, id, area, listener),
      m_downImage(Collections::TCountedObjectDeleter<IImage>::getStaticDeleter()) {
    CControl::setValue(0.0);
}

void CButton::handleLeftButtonDown(CMouseEvent &event) {
    if (!m_isHandCursorUsed)
        return;
    if (event.getMouse() != nullptr)
        event.getMouse()->setCursor(CCursor::getHandCursor());
    getControlRoot()->lockControl(this);
}

void CButton::handleLeftButtonUp(CMouseEvent &event) {
    if (!m_isHandCursorUsed)
        return;
    showCursorFor(event);
    getControlRoot()->unlockControl();
}

void CButton::handleMouseMovement(CMouseEvent &event) {
    if (!m_isHandCursorUsed)
        return;
    showCursorFor(event);
    if (isMouseInside(event))
        getControlRoot()->lockControl(this);
    else
        getControlRoot()->unlockControl();
}

bool CButton::isMouseInside(const CMouseEvent &event) const {
    return getNormalisedArea().pointIsInside(event.getMousePosition());
}

void CButton::showCursorFor(const CMouseEvent &event) const {
    if (event.getMouse() != nullptr)
        event.getMouse()->setCursor(isMouseInside(event) ? CCursor::getHandCursor()
                                                         : CCursor::getDefaultCursor());
}

void CButton::setColours(const SButtonColours &down, const SButtonColours &up) {
    m_down = down;
    m_up = up;
}

void CButton::drawControl(CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    IImage *image = m_isDown ? getDownImage() : getPrimaryImage();
    if (image != nullptr)
        drawInto(graphics, image);
    else
        drawFace(graphics, m_isDown ? m_down : m_up);
}

void CButton::drawFace(CGraphics &graphics, const SButtonColours &colours) const {
    const std::int32_t size = getDimension().getWidth() / 16;
    const MathTools::CDimension corner(size, size);
    graphics.getBrush().setColour(colours.fill);
    graphics.fillRoundedRectangle(getNormalisedArea(), corner);
    graphics.getPen().setColour(colours.outline);
    graphics.drawRoundedRectangle(getNormalisedArea(), corner);
    constexpr std::int32_t centred = 10;
    graphics.setTextColour(colours.text);
    graphics.drawText(m_text, getNormalisedArea(), nullptr, centred);
}

}  // namespace Tessitor::GUI::Controls
