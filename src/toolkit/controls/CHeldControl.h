#pragma once

#include "toolkit/controls/IControl.h"

namespace Tessitor::GUI::Controls {

/// Keeps a control alive while code that may remove it is called.
class CHeldControl {
public:
    explicit CHeldControl(IControl *control) : m_control(control) { m_control->reference(); }
    CHeldControl(const CHeldControl &) = delete;
    CHeldControl &operator=(const CHeldControl &) = delete;
    ~CHeldControl() { m_control->dereference(); }

private:
    IControl *m_control;
};

}  // namespace Tessitor::GUI::Controls
