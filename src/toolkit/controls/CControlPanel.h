#pragma once

#include "toolkit/controls/CControl.h"
#include "toolkit/controls/CControlRoot.h"

namespace Tessitor::GUI::Controls {

/// A control that has controls inside it: the root of those controls. What reaches the panel as a
/// control is passed on to them, with positions relative to the panel.
class CControlPanel : public CControlRoot, public CControl {
public:
    /// @param window  not owned; must outlive the panel. Throws CException if it is null.
    CControlPanel(Windowing::IWindow *window, IControlRoot *root, std::int32_t id,
                  const MathTools::CRect &area, Listeners::IActionListener *listener);
    ~CControlPanel() override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void handleRightButtonDown(Events::CMouseEvent &event) override;
    void handleRightButtonUp(Events::CMouseEvent &event) override;
    void handleDoubleClick(Events::CMouseEvent &event) override;
    void handleMouseScroll(Events::CMouseEvent &event) override;
    void handleMouseMovement(Events::CMouseEvent &event) override;
    void handleMouseLeaving(Events::CMouseEvent &event) override;
    bool handleKeyDown(const Events::CKeyboardEvent &event) override;
    bool handleKeyUp(const Events::CKeyboardEvent &event) override;
    void handleFileDrop(const Events::CDropEvent &event) override;

    /// Also locks the panel in its own root, so that all roots up to the window lead to the
    /// control.
    void lockControl(IControl *control) override;
    void unlockControl() override;
    MathTools::CPoint getWindowOffset() const override;
    IControl *getDeepControlAtPoint(const MathTools::CPoint &point) override;
    void addControl(IControl *control) override;

    void setArea(const MathTools::CRect &area) override;
    void enableControl() override;   ///< and the controls inside
    void disableControl() override;  ///< and the controls inside
    /// Draws the background image, or else as drawPrimaryImage(), and then the controls.
    void drawControl(Graphics::CGraphics &graphics) override;

    /// Writes the properties of the panel, and its controls into a child node "controls".
    void serialiseToXml(IO::CXMLNode *node) const override;
    bool serialiseFromXml(IO::CXMLNode *node) override;

private:
    static Tessitor::Basics::TClassRecord<CControlPanel> s_class;
};

}  // namespace Tessitor::GUI::Controls
