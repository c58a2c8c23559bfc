#pragma once

#include "platform/INativeSmoothDrawing.h"
#include "platform/INativeSurface.h"
#include "toolkit/graphics/CBaseImage.h"
#include "toolkit/graphics/CGraphics.h"

namespace Tessitor::GUI::Graphics {

/// An image with alpha that the program draws itself: between initialise() and uninitialise() it
/// can be drawn on, and after that it is loaded and can be drawn. [gui thread]
class CRGBAImage : public CBaseImage {
public:
    CRGBAImage() : CBaseImage(false) { s_class.incrementInstanceCount(); }
    ~CRGBAImage() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    EImageFormat getImageFormat() const override { return EImageFormat::RGBA; }
    void unloadImage() override;  ///< also ends drawing; the image then has no alpha

    /// Starts with a transparent picture. The old one is freed.
    /// @return false if the system refuses.
    bool initialise(std::int32_t width, std::int32_t height);
    /// @return what the picture is drawn with; null unless initialised.
    CGraphics *getGraphics() const { return m_drawing != nullptr ? &m_drawing->graphics : nullptr; }
    /// Ends drawing and makes the picture the image. If there is no memory for that, the image is
    /// not loaded.
    /// @throw CException if not initialised.
    void uninitialise();

private:
    struct SDrawing {
        CNativeSmoothSession session;
        std::unique_ptr<INativeAlphaSurface> surface;
        CGraphics graphics;
    };

    static Tessitor::Basics::TClassRecord<CRGBAImage> s_class;

    std::unique_ptr<SDrawing> m_drawing;  // null unless initialised
};

}  // namespace Tessitor::GUI::Graphics
