#pragma once

#include "hostlayer/AEffEditor.h"
#include "toolkit/events/IActionListener.h"
#include "toolkit/events/IKeyboardListener.h"
#include "toolkit/windowing/CPendingValues.h"
#include "toolkit/windowing/CWindow.h"

#include <mutex>

namespace Tessitor::Vst {

/// The editor of an effect: a window inside a window of the host. It can be opened again after it
/// was closed.
///
/// The thread that opens it is the [gui thread], which in Ardour 7.3 is not the one that created
/// the effect. While it is open, no other thread touches its controls; while it is closed, whoever
/// does holds its lock.
class CVstWindow : public AEffEditor,
                   public GUI::Windowing::CWindow,
                   public GUI::Listeners::IActionListener,
                   public GUI::Listeners::IKeyboardListener {
public:
    /// @param owner  becomes the owner of the editor; null for none.
    /// @param area   its size is the size of the editor.
    CVstWindow(AudioEffect *owner, const MathTools::CRect &area,
               const GUI::Windowing::CWindowAttributes &attributes);
    ~CVstWindow() override;

    // AEffEditor
    bool getRect(ERect **rect) override;
    /// Throws CException if the parent is null, or if the system refuses the window. The editor is
    /// then closed.
    bool open(void *parent) override;
    void close() override;
    /// Pumps the window, then shows the values that other threads have set. The window may be
    /// closed or deleted meanwhile. Does nothing on another thread than the one that has opened it.
    void idle() override;

    // CWindow. While the editor makes a change itself, nothing is redrawn.
    void redrawWindow() override;
    void redrawWindow(const MathTools::CRect &area) override;

    // IKeyboardListener: for the control root.
    bool handleKeyDown(const GUI::Events::CKeyboardEvent &event) override;
    bool handleKeyUp(const GUI::Events::CKeyboardEvent &event) override;

    virtual void redraw() { redrawWindow(); }
    /// For the effect to call whenever a parameter has changed. Leads to setParameter(): at once on
    /// the GUI thread while the window is open, and on the thread that created the window while it
    /// is closed and no other thread is just opening it; otherwise at the next idle() or open(),
    /// with the value that the effect then has. While getIsEditing(), what changes at once is not
    /// shown, since the editor knows it.
    ///
    /// [any thread] Never waits. Threads other than these two take no lock and allocate nothing.
    /// @param value  the effect must have stored it.
    void handleParameterChange(long id, double value);
    /// Shows a value. Called with the controls at its disposal; see handleParameterChange().
    virtual void setParameter(long id, double value) = 0;
    virtual bool getIsEditing() const { return m_isEditing; }
    virtual void setIsEditing(bool isEditing) { m_isEditing = isEditing; }

protected:
    /// Throws CException if the parent is null.
    virtual void attachToParent(void *parent);
    virtual void makeWindow();  ///< creates and shows the native window
    virtual void detachFromParent();
    /// Called at the end of idle(), with the controls at its disposal.
    virtual void handleIdle() {}

private:
    using ThreadNumber = std::uintptr_t;  // see NativeThread.h
    static constexpr ThreadNumber noThread = 0;

    bool isOpenOnThisThread() const;
    bool isOpenOnAnotherThread() const;
    bool showWhileClosed(long id, double value);
    void showAtOnce(long id, double value);
    void show(long id, double value);
    void showPendingValues();

    /// Stands for the host's window.
    class CParentWindow : public GUI::Windowing::CWindow {
    public:
        explicit CParentWindow(void *handle);
    };

    std::unique_ptr<CParentWindow> m_parent;
    bool m_isEditing = false;
    ERect m_rect{};

    const ThreadNumber m_creator;
    std::atomic<ThreadNumber> m_guiThread = noThread;  // no thread while the window is closed
    std::recursive_mutex m_mutex;                      // what opens the window may close it
    CPendingValues m_pendingValues;
};

}  // namespace Tessitor::Vst
