#pragma once

namespace Tessitor::GUI::Controls {
class IControl;
}

namespace Tessitor::GUI::Windowing {

/// A window that remembers its tool tip. [gui thread]
class IToolTipSupportingWindow {
public:
    virtual ~IToolTipSupportingWindow() = default;

    virtual void setToolTip(Controls::IControl *toolTip) = 0;  ///< not owned; null for none
    virtual Controls::IControl *getToolTip() const = 0;
};

}  // namespace Tessitor::GUI::Windowing
