#include "toolkit/graphics/CRGBAImage.h"

#include "foundation/CException.h"

namespace Tessitor::GUI::Graphics {

Tessitor::Basics::TClassRecord<CRGBAImage> CRGBAImage::s_class("CRGBAImage", "CBaseImage");

void CRGBAImage::unloadImage() {
    m_drawing.reset();
    setHasAlpha(false);
    CBaseImage::unloadImage();
}

bool CRGBAImage::initialise(std::int32_t width, std::int32_t height) {
    unloadImage();
    setHasAlpha(true);
    setSize(width, height);
    auto drawing = std::make_unique<SDrawing>();
    if (!drawing->session.isAvailable())
        return fail("System doesnt support GDI+ which must be available to draw RGBA images");
    drawing->surface = createNativeAlphaSurface(width, height);
    if (drawing->surface == nullptr)
        return fail("Failed to get HBITMAP from GDI Bitmap");
    drawing->graphics.initialise(*drawing->surface, getImageSize());
    m_drawing = std::move(drawing);
    return true;
}

void CRGBAImage::uninitialise() {
    if (m_drawing == nullptr)
        throw Exceptions::CException("GDI+ Bitmap or context are NULL", "CRGBAImage::unintialise()",
                                     true);
    m_drawing->graphics.uninitialise();
    setBitmap(m_drawing->surface->makeBitmap());
    if (!hasImageLoaded())
        fail("Failed to get HBITMAP from GDI Bitmap");
    m_drawing.reset();
}

}  // namespace Tessitor::GUI::Graphics
