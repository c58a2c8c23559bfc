#pragma once

#include "toolkit/controls/CControl.h"

namespace Tessitor::GUI::Controls {

/// Shows its primary image. If drops are enabled, a file that is dropped on it replaces the image,
/// and the label reports that.
class CImageLabel : public CControl {
public:
    CImageLabel(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                Listeners::IActionListener *listener);
    ~CImageLabel() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Kept: a file that is not an image is reported, too, and leaves the label without an image.
    void handleFileDrop(const Events::CDropEvent &event) override;
    void drawControl(Graphics::CGraphics &graphics) override;

private:
    static Tessitor::Basics::TClassRecord<CImageLabel> s_class;
};

}  // namespace Tessitor::GUI::Controls
