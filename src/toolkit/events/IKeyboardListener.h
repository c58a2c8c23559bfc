#pragma once

namespace Tessitor::GUI::Events {
class CKeyboardEvent;
}

namespace Tessitor::GUI::Listeners {

/// Receives keys. [gui thread]
class IKeyboardListener {
public:
    virtual ~IKeyboardListener() = default;

    /// @return true if the listener has used the key.
    virtual bool handleKeyDown(const Events::CKeyboardEvent &event) = 0;
    virtual bool handleKeyUp(const Events::CKeyboardEvent &event) = 0;
};

}  // namespace Tessitor::GUI::Listeners
