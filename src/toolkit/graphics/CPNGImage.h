#pragma once

#include "toolkit/graphics/CBaseImage.h"

namespace Tessitor::GUI::Graphics {

/// An image from a PNG file. Kept: the path must end with "png" in lower case.
class CPNGImage : public CBaseImage {
public:
    CPNGImage() : CBaseImage(true) { s_class.incrementInstanceCount(); }
    ~CPNGImage() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    EImageFormat getImageFormat() const override { return EImageFormat::PNG; }
    bool loadFromFile(const Tessitor::Basics::CSystemString &path) override;

private:
    static Tessitor::Basics::TClassRecord<CPNGImage> s_class;
};

}  // namespace Tessitor::GUI::Graphics
