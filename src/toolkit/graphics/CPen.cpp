#include "toolkit/graphics/CPen.h"

namespace Tessitor::GUI::Graphics {

void CPen::makePen() {
    m_isNull = false;
    if (m_surface != nullptr)
        m_surface->setPen(m_colour.toNative(), m_width);
}

void CPen::deletePen() {
    if (m_surface != nullptr)
        m_surface->setPen({}, 1);
    m_surface = nullptr;
}

void CPen::initialise(std::int32_t width, INativeSurface *surface,
                      const Basics::CAlphaColour &colour) {
    m_surface = surface;
    m_width = width;
    m_colour = colour;
    makePen();
}

void CPen::setWidth(std::int32_t width) {
    setWidthAndColour(width, m_colour);
}

void CPen::setColour(const Basics::CAlphaColour &colour) {
    setWidthAndColour(m_width, colour);
}

void CPen::setWidthAndColour(std::int32_t width, const Basics::CAlphaColour &colour) {
    if (!m_isNull && width == m_width && colour == m_colour)
        return;
    m_width = width;
    m_colour = colour;
    makePen();
}

void CPen::useNullPen() {
    m_isNull = true;
    if (m_surface != nullptr)
        m_surface->setNullPen();
}

SNativeSmoothPen CPen::toNative() const {
    return {m_colour.toNativeWithAlpha(), m_width, m_lineCap};
}

}  // namespace Tessitor::GUI::Graphics
