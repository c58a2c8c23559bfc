#pragma once

namespace Tessitor::GUI::Events {
class CMenuEvent;
}

namespace Tessitor::GUI::Listeners {

/// Hears of a menu window. [gui thread]
class IMenuListener {
public:
    virtual ~IMenuListener() = default;
    virtual void menuOpened(Events::CMenuEvent &event) = 0;
    virtual void menuClosed(Events::CMenuEvent &event) = 0;
    virtual void menuSelected(Events::CMenuEvent &event) = 0;  ///< the event has an item
};

}  // namespace Tessitor::GUI::Listeners
