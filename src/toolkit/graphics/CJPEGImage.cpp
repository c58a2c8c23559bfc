#include "toolkit/graphics/CJPEGImage.h"

namespace Tessitor::GUI::Graphics {

Tessitor::Basics::TClassRecord<CJPEGImage> CJPEGImage::s_class("CJPEGImage", "CBaseImage");

bool CJPEGImage::loadFromFile(const Tessitor::Basics::CSystemString &path) {
    setFilename(path);
    unloadImage();
    if (!path.hasExtension("jpg") && !path.hasExtension("jpeg"))
        return fail("Filename is not of JPEG type");
    if (!decode(path, "JPEG"))
        return false;
    // Kept: the picture is taken to be square.
    setSize(getImageHandle()->getWidth(), getImageHandle()->getWidth());
    return true;
}

}  // namespace Tessitor::GUI::Graphics
