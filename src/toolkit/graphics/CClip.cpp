#include "toolkit/graphics/CClip.h"

#include "foundation/CException.h"

namespace Tessitor::GUI::Graphics {

void CClip::initialise(CNativeImage *image, const MathTools::CRect &area,
                       INativeSmoothDrawing *graphics) {
    if (image == nullptr)
        throw Exceptions::CException("Native image is NULL",
                                     "Tessitor::GUI::Graphics::CClip::initialise", true);
    m_isActive = false;
    m_drawingArea = area;
    m_clipRegion = area;
    m_image = image;
    m_graphics = graphics;
}

void CClip::uninitialise() {
    m_isActive = false;
    m_image = nullptr;
    m_graphics = nullptr;
}

void CClip::setClipRegion(const MathTools::CRect &rect) {
    if (m_image == nullptr)
        return;
    m_isActive = true;
    m_clipRegion = rect;
    if (m_graphics != nullptr)
        m_graphics->setClip(rect.toNative());
    if (INativeSurface *surface = m_image->getSurface())
        surface->setClip(rect.toNative());
}

void CClip::resetClip() {
    if (!m_isActive)
        return;  // nothing has been saved that could be restored
    m_isActive = false;
    if (m_graphics != nullptr)
        m_graphics->resetClip();
}

}  // namespace Tessitor::GUI::Graphics
