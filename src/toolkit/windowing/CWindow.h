#pragma once

#include "platform/INativeWindow.h"
#include "toolkit/events/IFocusListener.h"
#include "toolkit/events/IMouseListener.h"
#include "toolkit/events/IWindow.h"
#include "toolkit/events/IWindowChangeListener.h"
#include "toolkit/windowing/CWindowAttributes.h"
#include "toolkit/windowing/IToolTipSupportingWindow.h"
#include "toolkit/windowing/SWindowParts.h"

#include <functional>

namespace Tessitor::GUI::Windowing {

/// A window with controls. At first its control root is the listener for mouse, keys and dropped
/// files, and the window itself for focus and changes. It counts its own references, in the way of
/// CCountedObject.
///
/// Handlers may close or delete the window: its control root and all that the root uses live on
/// until the last message in progress has been handled. [gui thread]
class CWindow : public IWindow,
                public Listeners::IWindowChangeListener,
                public Listeners::IFocusListener,
                public IToolTipSupportingWindow,
                private INativeWindowListener {
public:
    explicit CWindow(const MathTools::CRect &rect);  ///< see setWindowPosition()
    CWindow(const CWindow &) = delete;
    CWindow &operator=(const CWindow &) = delete;
    ~CWindow() override;

    // ICountedObject
    void reference() override { ++m_referenceCount; }
    void dereference() override;
    std::int32_t getReferenceCount() const override { return m_referenceCount; }
    void getObjectDescription(char *array, long size) const override;  ///< the title
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    // IWindow
    void setParentWindow(IWindow *window) override { m_parentWindow = window; }
    IWindow *getParentWindow() const override { return m_parentWindow; }
    void windowDestroying() override {}
    void windowCreating() override {}
    void windowCreated() override {}
    const SWindowHandle *getWindowHandle() const override { return &m_parts->handle; }
    SWindowHandle *getMutableWindowHandle() override { return &m_parts->handle; }
    CWindowAttributes *getWindowAttributes() const override { return m_attributes.get(); }
    void setWindowAttributes(const CWindowAttributes *attributes, bool showWindow) override;
    void destroyWindow() override;  ///< also stops all timers
    void openWindow() override;
    void closeWindow() override;
    void uninitialiseWindow() override;  ///< the last step of destroyWindow()
    void updateWindow() override;
    void disableWindow() override;
    void enableWindow() override;
    void drawWindow(Graphics::CGraphics &graphics) override;
    void redrawWindow() override;
    void redrawWindow(const MathTools::CRect &area) override;
    void setWindowPosition(const MathTools::CPoint &position) override;
    const MathTools::CPoint &getWindowPosition() const override { return m_position; }
    void setWindowSize(const MathTools::CDimension &size) override;
    const MathTools::CDimension &getWindowSize() const override { return m_size; }
    void setWindowPositionAndSize(const MathTools::CRect &rect) override;
    const MathTools::CRect &getWindowRect() const override { return m_rect; }
    void setWindowAlpha(double alpha) override;
    void timerEvent(long id) override;
    void startTimer(long id, long milliseconds) override;
    void stopTimer(long id) override;
    void addTimedObject(ITimedObject *object) override;
    void removeTimedObject(ITimedObject *object) override;
    void stopAllTimers() override;
    void setFocusListener(Listeners::IFocusListener *listener) override {
        m_focusListener = listener;
    }
    void setWindowChangeListener(Listeners::IWindowChangeListener *listener) override {
        m_windowChangeListener = listener;
    }
    void setMouseListener(Listeners::IMouseListener *listener) override {
        m_mouseListener = listener;
    }
    void setDropFileListener(Listeners::IDropFileListener *listener) override {
        m_dropFileListener = listener;
    }
    void setKeyboardListener(Listeners::IKeyboardListener *listener) override {
        m_keyboardListener = listener;
    }
    bool hasMouseListener() const override { return m_mouseListener != nullptr; }
    bool hasKeyboardListener() const override { return m_keyboardListener != nullptr; }
    bool hasDropFileListener() const override { return m_dropFileListener != nullptr; }
    Controls::IControlRoot *getControlRoot() override { return m_parts->root.get(); }
    const Controls::IControlRoot *getControlRoot() const override { return m_parts->root.get(); }

    // IWindowChangeListener
    void windowSizeChanged(IWindow *, const MathTools::CDimension &) override {}
    void windowMoved(IWindow *, const MathTools::CPoint &) override {}
    /// Quits the application if this is its main window.
    bool windowClosed(IWindow *window) override;

    // IFocusListener
    void gainedFocus(IWindow *) override {}
    void lostFocus(IWindow *) override {}

    // IToolTipSupportingWindow
    void setToolTip(Controls::IControl *toolTip) override { m_toolTip = toolTip; }
    Controls::IControl *getToolTip() const override { return m_toolTip; }

protected:
    using RootFactory = std::function<std::unique_ptr<Controls::CControlRoot>(IWindow *)>;
    /// For a window with a control root of its own kind.
    CWindow(const MathTools::CRect &rect, const RootFactory &createRoot);

    /// The result of a message; empty for what the system does by default.
    using Result = std::optional<std::intptr_t>;

    bool isCreated() const { return m_native != nullptr; }

    /// Creates the native window from the attributes. Throws CException with the system's message
    /// if the system refuses the window.
    /// @return false if the system refuses this kind of window.
    virtual bool createWindow();
    /// Handles a native message; see ENativeMessage.
    virtual Result windowProcess(unsigned message, std::uintptr_t wParam, std::intptr_t lParam);
    /// Hands a key that was caught before it reached a window to the keyboard listener. The top bit
    /// of lParam is set when the key goes up. Nothing catches keys yet.
    /// @return true if the listener has used the key. False also for a negative code.
    virtual bool handleKeyboardHook(int code, std::uintptr_t wParam, std::intptr_t lParam);
    /// @param lParam  the packed position in the window.
    virtual void updateMousePosition(std::intptr_t lParam);
    virtual void trackMouseLeave();
    const Collections::TPointerCollection<ITimedObject> &getTimedObjects() const {
        return m_parts->timedObjects;
    }
    /// Lets the native window handle what has been reported; see INativeWindow::pump().
    /// @return false if that has deleted this window.
    bool pumpWindow();

private:
    using MouseHandler = void (Listeners::IMouseListener::*)(Events::CMouseEvent &);

    // INativeWindowListener. The system calls these, so that no exception leaves them.
    Result handleMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) override;
    void handleTimer(int id) override;
    void handleNativeDestroyed() override;
    /// @param window  may be deleted already, as the parts tell.
    static void handleException(CWindow *window, SWindowParts &parts);

    Result handleMouse(unsigned message, std::uintptr_t wParam, std::intptr_t lParam);
    Result handleButtonDown(unsigned message, std::intptr_t lParam, MouseHandler handler);
    Result handleButtonUp(unsigned message, std::intptr_t lParam, MouseHandler handler);
    Result handleWheel(std::uintptr_t wParam);
    void sendMouseEvent(unsigned message, MouseHandler handler);
    void setMousePosition(const MathTools::CPoint &position);
    Result handleKey(unsigned message, std::uintptr_t wParam, std::intptr_t lParam);
    void prepareKey(std::uintptr_t wParam, std::intptr_t lParam);
    bool sendKey(bool isDown);
    Result handleDrop(std::uintptr_t wParam);
    Result handlePaint();
    Result handleDestroy();
    Result handleClose();
    Result handleFocus();
    Result handleChildColour(std::uintptr_t wParam, std::intptr_t lParam);
    void storeMove(std::intptr_t lParam);
    void storeSize(std::intptr_t lParam);
    void storePosition(const MathTools::CPoint &position);
    void storeDimension(const MathTools::CDimension &size);
    void notifyMoved();
    void notifySizeChanged();
    bool notifyClosed();  // false if the listener keeps the window open
    bool hasTimedObject(long id) const;

    static Tessitor::Basics::TClassRecord<CWindow> s_class;

    // None of the listeners is owned.
    Listeners::IMouseListener *m_mouseListener;
    Listeners::IDropFileListener *m_dropFileListener;
    Listeners::IKeyboardListener *m_keyboardListener;
    Listeners::IWindowChangeListener *m_windowChangeListener = this;
    Listeners::IFocusListener *m_focusListener = this;
    std::unique_ptr<CWindowAttributes> m_attributes;
    IWindow *m_parentWindow = nullptr;  // not owned
    MathTools::CDimension m_size;
    MathTools::CPoint m_position;
    MathTools::CRect m_rect;
    Controls::IControl *m_toolTip = nullptr;  // not owned
    std::int32_t m_referenceCount = 0;
    std::shared_ptr<SWindowParts> m_parts;    // never null
    std::unique_ptr<INativeWindow> m_native;  // null unless created
};

}  // namespace Tessitor::GUI::Windowing
