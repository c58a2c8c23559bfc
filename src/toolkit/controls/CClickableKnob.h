#pragma once

#include "toolkit/controls/CKnob.h"

namespace Tessitor::GUI::Controls {

/// A knob that may be set to report a press instead of starting a drag, so that it can show a
/// parameter with few steps and open a menu. Kept: the wheel and a double click still turn it.
class CClickableKnob : public CKnob {
public:
    CClickableKnob(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                   Listeners::IActionListener *listener, bool isDragEnabled);
    ~CClickableKnob() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;

    virtual void setDragEnabled(bool isEnabled) { m_isDragEnabled = isEnabled; }
    virtual bool isDragEnabled() const { return m_isDragEnabled; }

private:
    static Tessitor::Basics::TClassRecord<CClickableKnob> s_class;

    bool m_isDragEnabled;
};

}  // namespace Tessitor::GUI::Controls
