#include "toolkit/graphics/CBaseImage.h"

#include "foundation/CopyText.h"
#include "platform/INativeSmoothDrawing.h"

namespace Tessitor::GUI::Graphics {

using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;

Tessitor::Basics::TClassRecord<CBaseImage> CBaseImage::s_class("CBaseImage", "IImage");

CBaseImage::CBaseImage(bool hasAlpha) : m_hasAlpha(hasAlpha) {
    s_class.incrementInstanceCount();
}

void CBaseImage::dereference() {
    if (--m_referenceCount < 1)
        delete this;
}

void CBaseImage::getObjectDescription(char *array, long size) const {
    CString text("No Image loaded");
    if (hasImageLoaded())
        text.setStringWithFormat("File loaded is = %s", m_filename.getString());
    Tessitor::Basics::copyText(array, size, text.getString());
}

void CBaseImage::unloadImage() {
    setBitmap(nullptr);
    setSize(0, 0);
}

void CBaseImage::setSize(std::int32_t width, std::int32_t height) {
    m_size.setDimension(width, height);
    m_area.setRect(0, 0, width, height);
}

bool CBaseImage::fail(const char *error) {
    m_lastError = error;
    return false;
}

bool CBaseImage::decode(const CSystemString &path, const char *format) {
    const CNativeSmoothSession session;
    if (!session.isAvailable()) {
        m_lastError.setStringWithFormat(
            "System doesnt support GDI+ which must be available to load %s images", format);
        return false;
    }
    setBitmap(decodeNativeBitmap(path.getString()));
    return hasImageLoaded() || fail("Failed to aquire HBITMAP from Bitmap image");
}

}  // namespace Tessitor::GUI::Graphics
