#include "toolkit/graphics/CPNGImage.h"

namespace Tessitor::GUI::Graphics {

Tessitor::Basics::TClassRecord<CPNGImage> CPNGImage::s_class("CPNGImage", "CBaseImage");

bool CPNGImage::loadFromFile(const Tessitor::Basics::CSystemString &path) {
    setFilename(path);
    unloadImage();
    if (!path.hasExtension("png"))
        return fail("Filename is not of PNG type");
    if (!decode(path, "PNG"))
        return false;
    setSize(getImageHandle()->getWidth(), getImageHandle()->getHeight());
    return true;
}

}  // namespace Tessitor::GUI::Graphics
