#pragma once

#include "toolkit/controls/CTextLabel.h"

namespace Tessitor::GUI::Controls {

/// A label that reports each press to its listener. Without text and default drawing it is a hot
/// spot over a picture.
class CClickableLabel : public CTextLabel {
public:
    CClickableLabel(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                    const Tessitor::Basics::CString &text, Listeners::IActionListener *listener);
    ~CClickableLabel() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void drawControl(Graphics::CGraphics &graphics) override;

protected:
    /// For derived labels: a grey background, in front of the default drawing.
    void setHighlighted(bool isHighlighted) { m_isHighlighted = isHighlighted; }

private:
    static Tessitor::Basics::TClassRecord<CClickableLabel> s_class;

    bool m_isHighlighted = false;
};

}  // namespace Tessitor::GUI::Controls
