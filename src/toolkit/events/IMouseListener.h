#pragma once

namespace Tessitor::GUI::Events {
class CMouseEvent;
}

namespace Tessitor::GUI::Listeners {

/// Receives what the mouse does. Positions are relative to the listener. [gui thread]
class IMouseListener {
public:
    virtual ~IMouseListener() = default;

    virtual void handleLeftButtonDown(Events::CMouseEvent &event) = 0;
    virtual void handleLeftButtonUp(Events::CMouseEvent &event) = 0;
    virtual void handleRightButtonDown(Events::CMouseEvent &event) = 0;
    virtual void handleRightButtonUp(Events::CMouseEvent &event) = 0;
    /// Comes in place of the second press of the left button.
    virtual void handleDoubleClick(Events::CMouseEvent &event) = 0;
    virtual void handleMouseScroll(Events::CMouseEvent &event) = 0;
    virtual void handleMouseMovement(Events::CMouseEvent &event) = 0;
    virtual void handleMouseLeaving(Events::CMouseEvent &event) = 0;  ///< it left the window
};

}  // namespace Tessitor::GUI::Listeners
