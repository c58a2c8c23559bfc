#pragma once

namespace Tessitor::GUI::Events {
class CActionEvent;
}

namespace Tessitor::GUI::Listeners {

/// Receives what controls report. [gui thread]
class IActionListener {
public:
    virtual ~IActionListener() = default;

    /// May remove the sender, or any panel around it, from its root.
    virtual void handleActionEvent(const Events::CActionEvent &event) = 0;
};

}  // namespace Tessitor::GUI::Listeners
