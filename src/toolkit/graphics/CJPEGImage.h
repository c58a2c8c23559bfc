#pragma once

#include "toolkit/graphics/CBaseImage.h"

namespace Tessitor::GUI::Graphics {

/// An image from a JPEG file, whose path must end with "jpg" or "jpeg" in lower case. Kept: its
/// height is taken to be its width.
class CJPEGImage : public CBaseImage {
public:
    CJPEGImage() : CBaseImage(false) { s_class.incrementInstanceCount(); }
    ~CJPEGImage() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    EImageFormat getImageFormat() const override { return EImageFormat::JPEG; }
    bool loadFromFile(const Tessitor::Basics::CSystemString &path) override;

private:
    static Tessitor::Basics::TClassRecord<CJPEGImage> s_class;
};

}  // namespace Tessitor::GUI::Graphics
