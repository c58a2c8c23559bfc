#pragma once

#include "toolkit/graphics/CBaseImage.h"

namespace Tessitor::GUI::Graphics {

/// An image from a TGA file, whose path must end with "tga". The file must have 32 bits per pixel,
/// uncompressed, bottom row first, without an identification or a colour map.
class CTGAImage : public CBaseImage {
public:
    CTGAImage() : CBaseImage(true) { s_class.incrementInstanceCount(); }
    ~CTGAImage() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    EImageFormat getImageFormat() const override { return EImageFormat::TGA; }
    bool loadFromFile(const Tessitor::Basics::CSystemString &path) override;

private:
    static Tessitor::Basics::TClassRecord<CTGAImage> s_class;
};

}  // namespace Tessitor::GUI::Graphics
