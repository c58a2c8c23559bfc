#pragma once

#include "foundation/CDimension.h"
#include "foundation/CRect.h"
#include "foundation/CString.h"
#include "foundation/TCountedPointerArray.h"
#include "toolkit/events/IDropFileListener.h"
#include "toolkit/events/IKeyboardListener.h"
#include "toolkit/events/IMouseListener.h"

namespace Tessitor::IO {
class CXMLNode;
}

namespace Tessitor::GUI::Basics {
class CAlphaColour;
}

namespace Tessitor::GUI::Graphics {
class CGraphics;
class IImage;
}  // namespace Tessitor::GUI::Graphics

namespace Tessitor::GUI::Listeners {
class IActionListener;
}

namespace Tessitor::GUI::Controls {

class CControlDescriptor;
class IControlRoot;

/// A part of a window: it draws itself, receives the events of the mouse, keys and dropped files,
/// and reports to an action listener. Its value runs from 0 to 1. It belongs to a root, which hands
/// it its events with positions relative to its own top left corner. [gui thread]
class IControl : public Tessitor::Basics::ICountedObject,
                 public Listeners::IMouseListener,
                 public Listeners::IKeyboardListener,
                 public Listeners::IDropFileListener {
public:
    using DescriptorList = Collections::TCountedPointerArray<CControlDescriptor>;

    /// @param root  not owned; must outlive the control's use. Throws CException if it is null.
    virtual void setControlRoot(IControlRoot *root) = 0;
    virtual IControlRoot *getControlRoot() const = 0;
    /// @param parent  the panel around the control. Not owned; null for none.
    virtual void setParentControl(IControl *parent) = 0;
    virtual IControl *getParentControl() const = 0;
    /// @param listener  not owned; null for none.
    virtual void registerActionListener(Listeners::IActionListener *listener) = 0;

    // Which events reach the control.
    virtual void setMouseEnabled(bool isEnabled) = 0;
    /// Enabling also enables the parent control, so that a drop can reach down to this one.
    virtual void setDropFileEnabled(bool isEnabled) = 0;
    virtual void setKeyboardEnabled(bool isEnabled) = 0;
    virtual void reservedHook() = 0;  ///< nothing calls it yet
    virtual bool isMouseEnabled() const = 0;
    virtual bool isDropFileEnabled() const = 0;
    virtual bool isKeyboardEnabled() const = 0;
    virtual bool reservedInputQuery() const = 0;  ///< nothing asks yet
    virtual bool isFocused() const = 0;

    /// Writes the properties as children of the node. Null is ignored.
    virtual void serialiseToXml(IO::CXMLNode *node) const = 0;
    /// Applies the properties that serialiseToXml() has written.
    /// @return false if one of them is missing, unknown or malformed. Those before it are applied.
    virtual bool serialiseFromXml(IO::CXMLNode *node) = 0;
    /// Appends a descriptor with its value for each property.
    virtual void getDescriptors(DescriptorList &descriptors) const = 0;
    /// Sets the property of that name. @return false if there is none, or if the value is of the
    /// wrong class.
    virtual bool setFromDescriptor(const CControlDescriptor &descriptor) = 0;
    /// Reads the property of that name into the descriptor. @return false if there is none.
    virtual bool getDescriptorValue(CControlDescriptor &descriptor) const = 0;

    virtual std::int32_t getUniqueId() const = 0;
    virtual void setUniqueId(std::int32_t id) = 0;
    virtual const Tessitor::Basics::CString &getDescription() const = 0;
    virtual void setDescription(const Tessitor::Basics::CString &description) = 0;
    /// Stores a value from 0 to 1, unchecked. Reports and redraws nothing.
    virtual void setValue(double value) = 0;
    virtual double getValue() const = 0;

    /// Moves the control, with all that is inside it. Redraws nothing.
    /// @param area  relative to the root's origin.
    virtual void setArea(const MathTools::CRect &area) = 0;
    virtual const MathTools::CRect &getArea() const = 0;
    virtual const MathTools::CRect &getAbsoluteRect() const = 0;  ///< in window coordinates
    virtual const MathTools::CDimension &getDimension() const = 0;
    virtual bool reservedAreaQuery() const = 0;  ///< nothing asks yet
    virtual bool isTransient() const = 0;
    virtual void setTransient(bool isTransient) = 0;  ///< left out when the root is saved

    virtual void update() = 0;  ///< has the control painted soon
    /// Draws the control. The origin of the graphics is the control's top left corner, and the
    /// update area is the part that will be seen.
    virtual void drawControl(Graphics::CGraphics &graphics) = 0;
    // Enabling changes how the control looks, not which events it receives.
    virtual void enableControl() = 0;
    virtual void disableControl() = 0;
    // These hold a reference to the image; null for none.
    virtual void setPrimaryImage(Graphics::IImage *image) = 0;
    virtual void setDisabledImage(Graphics::IImage *image) = 0;
    /// @return the area relative to the control itself: 0, 0, width, height.
    virtual const MathTools::CRect &getNormalisedArea() const = 0;
    virtual void setDefaultControlColours(const Basics::CAlphaColour &background,
                                          const Basics::CAlphaColour &frame) = 0;
    /// @param isDefaultDrawing  whether background and frame are drawn if there is no image.
    virtual void setDefaultDrawing(bool isDefaultDrawing) = 0;

    /// Draws the disabled image of a disabled control. @return false if the control is disabled, so
    /// nothing else should be drawn.
    virtual bool drawEnabledControl(Graphics::CGraphics &graphics) = 0;
    /// Draws the primary image, or else, if asked to, the background and its frame.
    virtual void drawPrimaryImage(Graphics::CGraphics &graphics, bool isDefaultDrawing) = 0;
    virtual void drawImage(Graphics::CGraphics &graphics) = 0;  ///< the primary image alone
};

}  // namespace Tessitor::GUI::Controls
