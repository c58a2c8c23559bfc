#pragma once

#include "foundation/CDimension.h"
#include "foundation/CRect.h"
#include "platform/INativeSurface.h"
#include "toolkit/graphics/CColour.h"

#include <memory>

namespace Tessitor::GUI::Graphics {

/// The off-screen image of one painting. [gui thread]
class CNativeImage {
public:
    CNativeImage() = default;
    CNativeImage(const CNativeImage &) = delete;
    CNativeImage &operator=(const CNativeImage &) = delete;
    virtual ~CNativeImage() = default;

    /// Creates the image, filled with the background colour. Does nothing if it exists already, or
    /// if the system refuses.
    /// @param target  what the image will be copied to; null for the screen.
    void initialise(const INativePaintTarget *target, const MathTools::CDimension &size);
    void uninitialise() { m_surface.reset(); }
    bool isInitialised() const { return m_surface != nullptr; }

    // These do nothing unless both images are initialised.
    void copyTo(CNativeImage &other) const;  ///< the whole of this image
    void copyFrom(const CNativeImage &other) { other.copyTo(*this); }
    /// Draws a part of this image over the other.
    /// @param alpha  0 to 255, the weight of this image.
    void blendTo(CNativeImage &other, const MathTools::CRect &source,
                 const MathTools::CRect &destination, std::uint8_t alpha) const;

    /// Takes effect the next time that the image is initialised.
    void setBackgroundColour(const Basics::CColour &colour) { m_background = colour; }
    const Basics::CColour &getBackgroundColour() const { return m_background; }
    const MathTools::CDimension &getSize() const { return m_size; }  ///< as last initialised
    INativeSurface *getSurface() const { return m_surface.get(); }   ///< null if not initialised

private:
    std::unique_ptr<INativeSurface> m_surface;
    MathTools::CDimension m_size;
    Basics::CColour m_background;
};

}  // namespace Tessitor::GUI::Graphics
