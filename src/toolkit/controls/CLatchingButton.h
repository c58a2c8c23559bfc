#pragma once

#include "toolkit/controls/CButton.h"

namespace Tessitor::GUI::Controls {

/// A button that changes its position with every click. Its value is then 1 minus what it was, and
/// it is down from 0.5 on.
class CLatchingButton : public CButton {
public:
    CLatchingButton(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                    Listeners::IActionListener *listener);
    ~CLatchingButton() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Switches and reports, wherever the mouse is.
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void setValue(double value) override;

private:
    static Tessitor::Basics::TClassRecord<CLatchingButton> s_class;
};

}  // namespace Tessitor::GUI::Controls
