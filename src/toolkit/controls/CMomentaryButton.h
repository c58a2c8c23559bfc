#pragma once

#include "toolkit/controls/CButton.h"

namespace Tessitor::GUI::Controls {

/// A button that is down while it is pressed, and reports when it is released. The mouse does not
/// change its value.
class CMomentaryButton : public CButton {
public:
    CMomentaryButton(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                     Listeners::IActionListener *listener);
    ~CMomentaryButton() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    /// Reports, wherever the mouse is.
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void handleMouseMovement(Events::CMouseEvent &event) override;
    void setValue(double value) override;  ///< shows the button down for exactly 1.0, otherwise up

private:
    static Tessitor::Basics::TClassRecord<CMomentaryButton> s_class;
};

}  // namespace Tessitor::GUI::Controls
