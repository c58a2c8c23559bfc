#include "toolkit/graphics/CNativeImage.h"

namespace Tessitor::GUI::Graphics {

void CNativeImage::initialise(const INativePaintTarget *target, const MathTools::CDimension &size) {
    if (isInitialised())
        return;
    m_size = size;
    m_surface =
        createNativeSurface(target, size.getWidth(), size.getHeight(), m_background.toNative());
}

void CNativeImage::copyTo(CNativeImage &other) const {
    if (isInitialised() && other.isInitialised())
        other.m_surface->copyFrom(*m_surface, {0, 0, m_size.getWidth(), m_size.getHeight()});
}

void CNativeImage::blendTo(CNativeImage &other, const MathTools::CRect &source,
                           const MathTools::CRect &destination, std::uint8_t alpha) const {
    if (isInitialised() && other.isInitialised())
        other.m_surface->blendFrom(*m_surface, source.toNative(), destination.toNative(), alpha);
}

}  // namespace Tessitor::GUI::Graphics
