#pragma once

#include "hostlayer/AEffEditor.h"
#include "toolkit/events/IActionListener.h"
#include "toolkit/events/IKeyboardListener.h"
#include "toolkit/windowing/CWindow.h"

namespace Tessitor::Vst {

/// The editor of an effect: a window inside a window of the host. It can be opened again after it
/// was closed. [gui thread]
class CVstWindow : public AEffEditor,
                   public GUI::Windowing::CWindow,
                   public GUI::Listeners::IActionListener,
                   public GUI::Listeners::IKeyboardListener {
public:
    /// @param owner  becomes the owner of the editor; null for none.
    /// @param area   its size is what the host is told.
    CVstWindow(AudioEffect *owner, const MathTools::CRect &area,
               const GUI::Windowing::CWindowAttributes &attributes);
    ~CVstWindow() override;

    // AEffEditor
    bool getRect(ERect **rect) override;
    /// Throws CException if the parent is null, or if the system refuses the window. The editor is
    /// then closed.
    bool open(void *parent) override;
    void close() override;
    void idle() override {}

    // CWindow. While the editor makes a change itself, nothing is redrawn.
    void redrawWindow() override;
    void redrawWindow(const MathTools::CRect &area) override;

    // IKeyboardListener: for the control root.
    bool handleKeyDown(const GUI::Events::CKeyboardEvent &event) override;
    bool handleKeyUp(const GUI::Events::CKeyboardEvent &event) override;

    virtual void redraw() { redrawWindow(); }
    /// The effect calls this when a parameter has changed, unless getIsEditing().
    virtual void setParameter(long id, double value) = 0;
    virtual bool getIsEditing() const { return m_isEditing; }
    virtual void setIsEditing(bool isEditing) { m_isEditing = isEditing; }

protected:
    /// Throws CException if the parent is null.
    virtual void attachToParent(void *parent);
    virtual void makeWindow();  ///< creates and shows the native window
    virtual void detachFromParent();

private:
    /// Stands for the host's window.
    class CParentWindow : public GUI::Windowing::CWindow {
    public:
        explicit CParentWindow(void *handle);
    };

    std::unique_ptr<CParentWindow> m_parent;
    bool m_isEditing = false;
    ERect m_rect{};
};

}  // namespace Tessitor::Vst
