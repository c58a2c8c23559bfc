#pragma once

namespace Tessitor::GUI::Windowing {
class IWindow;
}

namespace Tessitor::GUI::Listeners {

/// Hears when a window gains or loses the keyboard. [gui thread]
class IFocusListener {
public:
    virtual ~IFocusListener() = default;

    virtual void gainedFocus(Windowing::IWindow *window) = 0;
    virtual void lostFocus(Windowing::IWindow *window) = 0;
};

}  // namespace Tessitor::GUI::Listeners
