#pragma once

#include "foundation/CClass.h"
#include "foundation/CPoint.h"
#include "foundation/CRect.h"
#include "foundation/CSystemString.h"
#include "foundation/TTreeNode.h"
#include "toolkit/events/IDropFileListener.h"
#include "toolkit/events/IKeyboardListener.h"
#include "toolkit/events/IMouseListener.h"

namespace Tessitor::IO {
class CXMLNode;
}

namespace Tessitor::GUI::Graphics {
class CGraphics;
class IImage;
}  // namespace Tessitor::GUI::Graphics

namespace Tessitor::GUI::Listeners {
class IActionListener;
}

namespace Tessitor::GUI::Windowing {
class IWindow;
}

namespace Tessitor::GUI::Controls {

class IControl;

/// The controls of a window or panel, in a fixed order. It draws them in that order, finds the one
/// that each event is for, and holds references to them. Points are relative to the root's origin
/// unless stated otherwise. A null control is ignored. [gui thread]
class IControlRoot : public Listeners::IMouseListener,
                     public Listeners::IDropFileListener,
                     public Listeners::IKeyboardListener {
public:
    /// From now on, this control gets all mouse events, wherever the mouse is. Held until
    /// unlockControl(); replaces an earlier lock.
    virtual void lockControl(IControl *control) = 0;
    virtual void unlockControl() = 0;
    virtual bool controlIsLocked() const = 0;
    virtual IControl *getLockedControl() const = 0;  ///< null if there is none
    /// Makes a control the only one that gets mouse events and keys, and has it drawn last. It need
    /// not be in the list. Null only clears.
    virtual void setModalControl(IControl *control) = 0;
    virtual void clearModalControl() = 0;
    virtual IControl *getModalControl() const = 0;  ///< null if there is none

    /// @param window  not owned; must outlive the root. Throws CException if it is null.
    virtual void setParentWindow(Windowing::IWindow *window) = 0;
    virtual Windowing::IWindow *getParentWindow() const = 0;
    /// @return where the root's origin is in the window; 0, 0 unless the root is a panel.
    virtual MathTools::CPoint getWindowOffset() const = 0;

    // Of the controls at a point, these return the first in the list; null if there is none. A
    // control covers its area and one more pixel to the right and below.
    virtual IControl *getControlAtPoint(const MathTools::CPoint &point) = 0;
    /// Continues inside panels. A panel at whose point there is no control returns itself.
    virtual IControl *getDeepControlAtPoint(const MathTools::CPoint &point) = 0;
    virtual IControl *getMouseEnabledControlAtPoint(const MathTools::CPoint &point) = 0;
    virtual IControl *getDropFileControlAtPoint(const MathTools::CPoint &point) = 0;
    virtual IControl *getKeyEnabledControlAtPoint(const MathTools::CPoint &point) = 0;

    /// @return the first control with that description; null if there is none.
    virtual IControl *
    getControlByDescription(const Tessitor::Basics::CString &description) const = 0;
    /// Adds a control at the end, unless it is in the list already. A panel also becomes the
    /// control's root and parent.
    virtual void addControl(IControl *control) = 0;
    /// Adds a control to a list that is neither drawn nor gets events.
    virtual void addExtraControl(IControl *control) = 0;
    /// Leaves a hole: the other controls keep their places. A lock is kept.
    virtual void removeControl(IControl *control) = 0;
    virtual void clearControls() = 0;
    /// @param isIndex  true to find a control by its place in the list, false by its id.
    /// @return null if there is none.
    virtual IControl *getControlAtIndex(std::int32_t index, bool isIndex) const = 0;
    virtual std::int32_t getControlIndex(IControl *control) const = 0;  ///< -1 if absent
    /// @return the control if it is in the extra list, otherwise null.
    virtual IControl *getExtraControl(IControl *control) const = 0;
    virtual std::int32_t getNumberOfControls() const = 0;  ///< places, including free ones
    /// @return the places that were ever filled. Removing a control does not lower it.
    virtual std::int32_t getNumberOfInsertedControls() const = 0;

    /// Draws what lies in the graphics' update area, which is in window coordinates.
    virtual void drawRootControl(Graphics::CGraphics &graphics) = 0;
    // Have a control or area painted soon.
    virtual void updateControl(std::int32_t id) = 0;  ///< the first control with this id
    virtual void updateControl(IControl *control) = 0;
    virtual void updateArea(const MathTools::CRect &area) = 0;  ///< in window coordinates

    /// Finds the top left corner of a control on the screen, as far as the window's position tells.
    virtual void getGlobalCoordinatesOfControl(IControl *control,
                                               MathTools::CPoint &point) const = 0;
    /// Finds the top left corner of one of the root's controls in the window.
    virtual void getWindowCoordinatesOfControl(IControl *control,
                                               MathTools::CPoint &point) const = 0;
    /// Holds a reference to the image; null for none.
    virtual void setBackgroundImage(Graphics::IImage *image) = 0;
    virtual void firstReservedHook() = 0;   ///< nothing calls it yet
    virtual void secondReservedHook() = 0;  ///< nothing calls it yet

    /// Adds the controls that serialiseToXml() has written.
    /// @param node  named "controls".
    /// @return false if the node has another name, if the number of controls is wrong, if one of
    ///         them cannot be created or read, or if about a hundred panels lie in each other.
    ///         Those before it are added.
    virtual bool serialiseFromXml(IO::CXMLNode *node) = 0;
    /// Same for a file. @return false also if it cannot be read.
    virtual bool loadFromFile(const Tessitor::Basics::CSystemString &path) = 0;
    /// Writes the controls that are not transient as children of the node. Null is ignored.
    virtual void serialiseToXml(IO::CXMLNode *node) const = 0;
    /// Same for a file. @return false if it cannot be written.
    virtual bool saveToFile(const Tessitor::Basics::CSystemString &path) const = 0;

    /// Adds a child for each control to a tree, with the controls of a panel below that panel. See
    /// TTreeNode for how to free the tree.
    virtual void createTree(Collections::TTreeNode<IControl> *tree) = 0;
    virtual Windowing::IWindow *getRootWindow() const = 0;  ///< the parent window
    /// Binds a control that was loaded from a file: sets its id and listener.
    /// @param type  the control's class, or one that it descends from.
    /// @return null if there is no control with that description, or if it is of another class.
    virtual IControl *connectControl(const Tessitor::Basics::CString &description, std::int32_t id,
                                     Listeners::IActionListener *listener,
                                     const Tessitor::Basics::CClass &type) = 0;
    virtual void removeExtraControl(IControl *control) = 0;
    virtual bool isControlAttached(IControl *control) const = 0;  ///< true if it is in the list
    virtual void lastReservedHook() = 0;                          ///< nothing calls it yet
};

}  // namespace Tessitor::GUI::Controls
