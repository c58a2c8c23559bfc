#include "toolkit/graphics/CBrush.h"

namespace Tessitor::GUI::Graphics {

void CBrush::initialise(INativeSurface *surface, const Basics::CAlphaColour &colour) {
    m_surface = surface;
    m_colour = colour;
    makeBrush();
}

void CBrush::uninitialise() {
    if (m_surface != nullptr)
        m_surface->setBrush({255, 255, 255});
    m_surface = nullptr;
}

void CBrush::setColour(const Basics::CAlphaColour &colour) {
    if (!m_isNull && colour == m_colour)
        return;
    m_colour = colour;
    makeBrush();
}

void CBrush::useNullBrush() {
    m_isNull = true;
    if (m_surface != nullptr)
        m_surface->setNullBrush();
}

void CBrush::makeBrush() {
    m_isNull = false;
    if (m_surface != nullptr)
        m_surface->setBrush(m_colour.toNative());
}

}  // namespace Tessitor::GUI::Graphics
