#pragma once

#include "foundation/TAutomaticPointer.h"
#include "foundation/TCountedPointerArray.h"
#include "toolkit/controls/IControl.h"
#include "toolkit/controls/IControlFactory.h"
#include "toolkit/controls/IControlRoot.h"
#include "toolkit/events/CMouseEvent.h"
#include "toolkit/graphics/IImage.h"

namespace Tessitor::GUI::Controls {

/// The controls of a window. While it hands an event to a control, any control may be removed, but
/// the root itself must stay.
class CControlRoot : public IControlRoot {
public:
    /// @param window  not owned; must outlive the root. Throws CException if it is null.
    explicit CControlRoot(Windowing::IWindow *window);
    CControlRoot(const CControlRoot &) = delete;
    CControlRoot &operator=(const CControlRoot &) = delete;
    ~CControlRoot() override = default;

    /// Mouse events go to the modal control if there is one and the mouse is in it, or else to the
    /// locked control, or else to the first mouse-enabled control at the point.
    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void handleRightButtonDown(Events::CMouseEvent &event) override;
    void handleRightButtonUp(Events::CMouseEvent &event) override;
    void handleDoubleClick(Events::CMouseEvent &event) override;
    void handleMouseScroll(Events::CMouseEvent &event) override;
    void handleMouseMovement(Events::CMouseEvent &event) override;
    void handleMouseLeaving(Events::CMouseEvent &event) override;
    /// Keys go to the modal control, or else to the locked control, or else to the last control
    /// that got a mouse event. @return the control's answer; false for a modal control.
    bool handleKeyDown(const Events::CKeyboardEvent &event) override;
    bool handleKeyUp(const Events::CKeyboardEvent &event) override;
    /// Drops go to the modal control if it is at the point and accepts drops. Kept: otherwise to
    /// the first control there that does, even though another one is modal.
    void handleFileDrop(const Events::CDropEvent &event) override;

    void lockControl(IControl *control) override { m_lockedControl.setPointer(control); }
    void unlockControl() override { m_lockedControl.freePointer(); }
    bool controlIsLocked() const override { return getLockedControl() != nullptr; }
    IControl *getLockedControl() const override { return m_lockedControl.getPointer(); }
    /// Unlocks all roots down to the control that has the mouse, without telling that control.
    void unlockAll();
    void setModalControl(IControl *control) override;
    void clearModalControl() override;
    IControl *getModalControl() const override { return m_modalControl.getPointer(); }

    void setParentWindow(Windowing::IWindow *window) override;
    Windowing::IWindow *getParentWindow() const override { return m_parentWindow; }
    MathTools::CPoint getWindowOffset() const override { return {0, 0}; }
    /// The position of the last mouse event, relative to the root's origin.
    const MathTools::CPoint &getMousePosition() const { return m_position; }

    IControl *getControlAtPoint(const MathTools::CPoint &point) override;
    IControl *getDeepControlAtPoint(const MathTools::CPoint &point) override;
    IControl *getMouseEnabledControlAtPoint(const MathTools::CPoint &point) override;
    IControl *getDropFileControlAtPoint(const MathTools::CPoint &point) override;
    IControl *getKeyEnabledControlAtPoint(const MathTools::CPoint &point) override;

    IControl *getControlByDescription(const Tessitor::Basics::CString &description) const override;
    void addControl(IControl *control) override;
    void addExtraControl(IControl *control) override;
    void removeControl(IControl *control) override;
    void clearControls() override { m_controls.clearArray(); }
    IControl *getControlAtIndex(std::int32_t index, bool isIndex) const override;
    std::int32_t getControlIndex(IControl *control) const override;
    IControl *getExtraControl(IControl *control) const override;
    std::int32_t getNumberOfControls() const override { return m_controls.getArraySize(); }
    std::int32_t getNumberOfInsertedControls() const override {
        return m_controls.getInsertIndex();
    }

    void drawRootControl(Graphics::CGraphics &graphics) override;
    void updateControl(std::int32_t id) override;
    void updateControl(IControl *control) override;
    void updateArea(const MathTools::CRect &area) override;
    void getGlobalCoordinatesOfControl(IControl *control, MathTools::CPoint &point) const override;
    void getWindowCoordinatesOfControl(IControl *control, MathTools::CPoint &point) const override;
    void setBackgroundImage(Graphics::IImage *image) override {
        m_backgroundImage.setPointer(image);
    }
    Graphics::IImage *getBackgroundImage() const { return m_backgroundImage.getPointer(); }
    void firstReservedHook() override {}
    void secondReservedHook() override {}

    bool serialiseFromXml(IO::CXMLNode *node) override;
    bool loadFromFile(const Tessitor::Basics::CSystemString &path) override;
    void serialiseToXml(IO::CXMLNode *node) const override;
    bool saveToFile(const Tessitor::Basics::CSystemString &path) const override;
    /// What creates the controls that are read from XML, here and in the panels among them; the
    /// standard factory at first.
    /// @param factory  not owned; must outlive the root.
    void setControlFactory(const IControlFactory &factory) { m_factory = &factory; }

    void createTree(Collections::TTreeNode<IControl> *tree) override;
    Windowing::IWindow *getRootWindow() const override { return m_parentWindow; }
    IControl *connectControl(const Tessitor::Basics::CString &description, std::int32_t id,
                             Listeners::IActionListener *listener,
                             const Tessitor::Basics::CClass &type) override;
    void removeExtraControl(IControl *control) override;
    bool isControlAttached(IControl *control) const override;
    void lastReservedHook() override {}

protected:
    /// Draws the background image, if there is one, where it meets an area. Both are relative to
    /// the root's origin.
    void drawBackground(Graphics::CGraphics &graphics, const MathTools::CRect &area);
    /// Draws the controls that meet an area, and last the modal control.
    /// @param area  in window coordinates.
    void drawControls(Graphics::CGraphics &graphics, const MathTools::CRect &area);
    /// Calls visit(control) for each control in the list.
    template <typename Visit>
    void forEachControl(Visit visit) {
        for (int i = 0; i < m_controls.getArraySize(); ++i)
            if (IControl *control = m_controls.elementAtIndex(i))
                visit(*control);
    }
    /// Same, and for the modal control.
    template <typename Visit>
    void forEachDrawnControl(Visit visit) {
        forEachControl(visit);
        if (IControl *modal = getModalControl())
            visit(*modal);
    }

private:
    using List = Collections::TCountedPointerArray<IControl>;
    using Holder = Collections::TAutomaticPointer<IControl>;

    void dispatch(Events::CMouseEvent &event,
                  void (Listeners::IMouseListener::*handler)(Events::CMouseEvent &),
                  bool isScroll = false);
    bool dispatch(const Events::CKeyboardEvent &event,
                  bool (Listeners::IKeyboardListener::*handler)(const Events::CKeyboardEvent &));
    IControl *findMouseTarget();
    IControl *findDropTarget(const MathTools::CPoint &point);
    bool addControlFromXml(IO::CXMLNode &node);

    Holder m_modalControl;
    List m_controls;  // a control never changes its place
    List m_extraControls;
    Holder m_lockedControl;
    Holder m_lastMouseControl;  // gets the keys
    Collections::TAutomaticPointer<Graphics::IImage> m_backgroundImage;
    Windowing::IWindow *m_parentWindow;  // not owned, never null
    Events::CMouseEvent m_mouseEvent;    // reused, so that a mouse movement allocates nothing
    MathTools::CPoint m_position;
    const IControlFactory *m_factory = &standardControlFactory();  // not owned
};

}  // namespace Tessitor::GUI::Controls
