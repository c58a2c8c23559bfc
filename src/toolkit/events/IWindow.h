#pragma once

#include "foundation/CDimension.h"
#include "foundation/CPoint.h"
#include "foundation/CRect.h"

namespace Tessitor::GUI::Controls {
class IControlRoot;
}

namespace Tessitor::GUI::Graphics {
class CGraphics;
}

namespace Tessitor::GUI::Listeners {
class IDropFileListener;
class IFocusListener;
class IKeyboardListener;
class IMouseListener;
class IWindowChangeListener;
}  // namespace Tessitor::GUI::Listeners

namespace Tessitor::GUI::Windowing {

class CWindowAttributes;
class ITimedObject;
struct SWindowHandle;

/// A window. It exists as a native window from setWindowAttributes() to destroyWindow(); outside
/// that time, what needs a native window does nothing. [gui thread]
class IWindow : public Tessitor::Basics::ICountedObject {
public:
    /// @param window  not owned; null for none. Takes effect when the native window is created.
    virtual void setParentWindow(IWindow *window) = 0;
    virtual IWindow *getParentWindow() const = 0;

    // Called around creation and destruction, for derived windows.
    virtual void windowDestroying() = 0;
    virtual void windowCreating() = 0;
    virtual void windowCreated() = 0;

    virtual const SWindowHandle *getWindowHandle() const = 0;  ///< never null
    virtual SWindowHandle *getMutableWindowHandle() = 0;       ///< never null

    virtual CWindowAttributes *getWindowAttributes() const = 0;
    /// Copies the attributes and creates the native window. Does nothing for null, or if the native
    /// window exists. Throws CException if the system refuses.
    /// @param showWindow  whether to open it, too.
    virtual void setWindowAttributes(const CWindowAttributes *attributes, bool showWindow) = 0;
    virtual void destroyWindow() = 0;
    virtual void openWindow() = 0;   ///< shows the native window
    virtual void closeWindow() = 0;  ///< hides the native window; the listener hears of it
    virtual void uninitialiseWindow() = 0;
    virtual void updateWindow() = 0;  ///< paints at once what is to be redrawn
    virtual void disableWindow() = 0;
    virtual void enableWindow() = 0;

    virtual void drawWindow(Graphics::CGraphics &graphics) = 0;
    virtual void redrawWindow() = 0;
    /// Has an area painted soon. @param area  in window coordinates.
    virtual void redrawWindow(const MathTools::CRect &area) = 0;

    /// @param position  relative to the parent window; of a popup, on the screen.
    virtual void setWindowPosition(const MathTools::CPoint &position) = 0;
    virtual const MathTools::CPoint &getWindowPosition() const = 0;
    virtual void setWindowSize(const MathTools::CDimension &size) = 0;
    virtual const MathTools::CDimension &getWindowSize() const = 0;
    virtual void setWindowPositionAndSize(const MathTools::CRect &rect) = 0;
    virtual const MathTools::CRect &getWindowRect() const = 0;
    virtual void setWindowAlpha(double alpha) = 0;  ///< 0 to 1, where the system can

    virtual void timerEvent(long id) = 0;  ///< calls the timed objects with this id
    /// @param id  of a timed object. Throws CException if it is 0.
    virtual void startTimer(long id, long milliseconds) = 0;
    virtual void stopTimer(long id) = 0;  ///< ignored unless a timed object has this id
    virtual void addTimedObject(ITimedObject *object) = 0;  ///< not owned
    virtual void removeTimedObject(ITimedObject *object) = 0;
    virtual void stopAllTimers() = 0;  ///< and removes all timed objects

    // The listeners are not owned; null for none.
    virtual void setFocusListener(Listeners::IFocusListener *listener) = 0;
    virtual void setWindowChangeListener(Listeners::IWindowChangeListener *listener) = 0;
    virtual void setMouseListener(Listeners::IMouseListener *listener) = 0;
    virtual void setDropFileListener(Listeners::IDropFileListener *listener) = 0;
    virtual void setKeyboardListener(Listeners::IKeyboardListener *listener) = 0;
    virtual bool hasMouseListener() const = 0;
    virtual bool hasKeyboardListener() const = 0;
    virtual bool hasDropFileListener() const = 0;

    virtual Controls::IControlRoot *getControlRoot() = 0;  ///< owned by the window
    virtual const Controls::IControlRoot *getControlRoot() const = 0;
};

}  // namespace Tessitor::GUI::Windowing
