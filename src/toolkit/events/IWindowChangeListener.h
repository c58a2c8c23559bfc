#pragma once

namespace Tessitor::MathTools {
class CDimension;
class CPoint;
}  // namespace Tessitor::MathTools

namespace Tessitor::GUI::Windowing {
class IWindow;
}

namespace Tessitor::GUI::Listeners {

/// Hears of changes to a window. [gui thread]
class IWindowChangeListener {
public:
    virtual ~IWindowChangeListener() = default;

    virtual void windowSizeChanged(Windowing::IWindow *window,
                                   const MathTools::CDimension &size) = 0;
    virtual void windowMoved(Windowing::IWindow *window, const MathTools::CPoint &position) = 0;
    /// @return false to keep the window open.
    virtual bool windowClosed(Windowing::IWindow *window) = 0;

    // Nothing calls these yet.
    virtual void firstReservedHook(Windowing::IWindow *) {}
    virtual void secondReservedHook(Windowing::IWindow *) {}
    virtual void thirdReservedHook(Windowing::IWindow *) {}
};

}  // namespace Tessitor::GUI::Listeners
