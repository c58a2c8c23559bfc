#include "toolkit/controls/CControl.h"

#include "foundation/CException.h"
#include "foundation/CopyText.h"
#include "toolkit/controls/IControlRoot.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/events/IActionListener.h"
#include "toolkit/graphics/CGraphics.h"

namespace Tessitor::GUI::Controls {

using Graphics::CGraphics;
using Graphics::IImage;
using MathTools::CRect;

Tessitor::Basics::TClassRecord<CControl> CControl::s_class("CControl", "IControl");

namespace {

IControlRoot *checked(IControlRoot *root) {
    if (root == nullptr)
        throw Exceptions::CException("Control root is null",
                                     "CControl::setControlRoot(IControlRoot *)", true);
    return root;
}

auto *imageDeleter() {
    return Collections::TCountedObjectDeleter<IImage>::getStaticDeleter();
}

}  // namespace

CControl::CControl(IControlRoot *root, std::int32_t id, const CRect &area,
                   Listeners::IActionListener *listener)
    : m_listener(listener), m_root(checked(root)), m_id(id), m_primaryImage(imageDeleter()),
      m_disabledImage(imageDeleter()) {
    CControl::setArea(area);
    s_class.incrementInstanceCount();
}

void CControl::dereference() {
    if (--m_referenceCount < 1)
        delete this;
}

void CControl::getObjectDescription(char *array, long size) const {
    Tessitor::Basics::copyText(array, size, m_description.getString());
}

void CControl::setControlRoot(IControlRoot *root) {
    m_root = checked(root);
    setArea(m_area);  // the same area is elsewhere in the window now
}

void CControl::setDropFileEnabled(bool isEnabled) {
    m_isDropFileEnabled = isEnabled;
    if (isEnabled && m_parent != nullptr)
        m_parent->setDropFileEnabled(true);
}

void CControl::setArea(const CRect &area) {
    m_area = area;
    m_dimension.setDimension(m_area.getWidth(), m_area.getHeight());
    m_normalisedArea.setRect(0, 0, m_area.getWidth(), m_area.getHeight());
    MathTools::CPoint origin;
    m_root->getWindowCoordinatesOfControl(this, origin);
    m_absoluteRect = CRect(origin, m_dimension);
}

void CControl::update() {
    m_root->updateControl(this);
}

void CControl::setDefaultControlColours(const Basics::CAlphaColour &background,
                                        const Basics::CAlphaColour &frame) {
    m_backgroundColour = background;
    m_frameColour = frame;
}

bool CControl::drawEnabledControl(CGraphics &graphics) {
    if (!m_isEnabled)
        drawInto(graphics, getDisabledImage());
    return m_isEnabled;
}

void CControl::drawPrimaryImage(CGraphics &graphics, bool isDefaultDrawing) {
    if (getPrimaryImage() != nullptr) {
        drawImage(graphics);
    } else if (isDefaultDrawing) {
        graphics.getBrush().setColour(m_backgroundColour);
        graphics.getPen().setColour(m_frameColour);
        graphics.drawFilledBorderedRectangle(m_normalisedArea);
    }
}

void CControl::drawImage(CGraphics &graphics) {
    drawInto(graphics, getPrimaryImage());
}

void CControl::drawInto(CGraphics &graphics, IImage *image) const {
    if (image != nullptr)
        graphics.drawImage(image, m_normalisedArea, image->getNormalisedImageArea());
}

void CControl::sendActionEvent() {
    if (m_listener != nullptr)
        m_listener->handleActionEvent(Events::CActionEvent(this));
}

void CControl::sendActionEvent(const Events::CMouseEvent &event) {
    if (m_listener != nullptr)
        m_listener->handleActionEvent(Events::CActionEvent(this, event));
}

}  // namespace Tessitor::GUI::Controls
