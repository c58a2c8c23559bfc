#pragma once

#include "foundation/CRect.h"
#include "foundation/CSystemString.h"
#include "platform/INativeBitmap.h"

namespace Tessitor::GUI::Graphics {

enum class EImageFormat { RGBA, TGA, PNG, JPEG };

/// A picture that CGraphics can draw. [gui thread]
class IImage : public Tessitor::Basics::ICountedObject {
public:
    virtual const MathTools::CDimension &getImageSize() const = 0;
    virtual const MathTools::CRect &getNormalisedImageArea() const = 0;  ///< at 0, 0
    virtual EImageFormat getImageFormat() const = 0;
    /// @return the file of the last attempt to load, even if that failed; "" if there is none.
    virtual const Tessitor::Basics::CSystemString &getFilename() const = 0;

    /// Replaces the picture by that of a file. Nothing throws.
    /// @return false if that fails. There is then no picture.
    virtual bool loadFromFile(const Tessitor::Basics::CSystemString &path) = 0;
    virtual void unloadImage() = 0;  ///< frees the picture; the size becomes 0 by 0
    virtual bool hasAlpha() const = 0;
    virtual bool hasImageLoaded() const = 0;
    /// @return the picture, owned by the image until it changes; null if none is loaded.
    virtual const INativeBitmap *getImageHandle() const = 0;
};

}  // namespace Tessitor::GUI::Graphics
