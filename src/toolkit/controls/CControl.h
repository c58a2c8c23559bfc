#pragma once

#include "foundation/TAutomaticPointer.h"
#include "toolkit/controls/IControl.h"
#include "toolkit/events/CMouseEvent.h"
#include "toolkit/graphics/CAlphaColour.h"
#include "toolkit/graphics/IImage.h"

namespace Tessitor::GUI::Controls {

/// The base of all controls: it keeps what a control is made of, and does nothing with events. It
/// counts its own references, in the way of CCountedObject, so it must live on the heap.
class CControl : public IControl {
public:
    /// @param root      not owned; must outlive the control's use. Throws CException if it is null.
    /// @param area      relative to the root's origin.
    /// @param listener  not owned; null for none.
    CControl(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
             Listeners::IActionListener *listener);
    CControl(const CControl &) = delete;
    CControl &operator=(const CControl &) = delete;
    ~CControl() override { s_class.decrementInstanceCount(); }

    void reference() override { ++m_referenceCount; }
    void dereference() override;
    std::int32_t getReferenceCount() const override { return m_referenceCount; }
    void getObjectDescription(char *array, long size) const override;  ///< the description
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &) override {}
    void handleLeftButtonUp(Events::CMouseEvent &) override {}
    void handleRightButtonDown(Events::CMouseEvent &) override {}
    void handleRightButtonUp(Events::CMouseEvent &) override {}
    void handleDoubleClick(Events::CMouseEvent &) override {}
    void handleMouseScroll(Events::CMouseEvent &) override {}
    void handleMouseMovement(Events::CMouseEvent &) override {}
    void handleMouseLeaving(Events::CMouseEvent &) override {}
    bool handleKeyDown(const Events::CKeyboardEvent &) override { return false; }
    bool handleKeyUp(const Events::CKeyboardEvent &) override { return false; }
    void handleFileDrop(const Events::CDropEvent &) override {}

    void setControlRoot(IControlRoot *root) override;
    IControlRoot *getControlRoot() const override { return m_root; }
    void setParentControl(IControl *parent) override { m_parent = parent; }
    IControl *getParentControl() const override { return m_parent; }
    void registerActionListener(Listeners::IActionListener *listener) override {
        m_listener = listener;
    }
    Listeners::IActionListener *getActionListener() const { return m_listener; }

    void setMouseEnabled(bool isEnabled) override { m_isMouseEnabled = isEnabled; }
    void setDropFileEnabled(bool isEnabled) override;
    void setKeyboardEnabled(bool isEnabled) override { m_isKeyboardEnabled = isEnabled; }
    void reservedHook() override {}
    bool isMouseEnabled() const override { return m_isMouseEnabled; }
    bool isDropFileEnabled() const override { return m_isDropFileEnabled; }
    bool isKeyboardEnabled() const override { return m_isKeyboardEnabled; }
    bool reservedInputQuery() const override { return false; }
    bool isFocused() const override { return false; }

    void serialiseToXml(IO::CXMLNode *node) const override;
    bool serialiseFromXml(IO::CXMLNode *node) override;
    void getDescriptors(DescriptorList &descriptors) const override;
    bool setFromDescriptor(const CControlDescriptor &descriptor) override;
    bool getDescriptorValue(CControlDescriptor &descriptor) const override;

    std::int32_t getUniqueId() const override { return m_id; }
    void setUniqueId(std::int32_t id) override { m_id = id; }
    const Tessitor::Basics::CString &getDescription() const override { return m_description; }
    void setDescription(const Tessitor::Basics::CString &description) override {
        m_description = description;
    }
    void setValue(double value) override { m_value = value; }
    double getValue() const override { return m_value; }

    void setArea(const MathTools::CRect &area) override;
    const MathTools::CRect &getArea() const override { return m_area; }
    const MathTools::CRect &getAbsoluteRect() const override { return m_absoluteRect; }
    const MathTools::CDimension &getDimension() const override { return m_dimension; }
    bool reservedAreaQuery() const override { return false; }
    bool isTransient() const override { return m_isTransient; }
    void setTransient(bool isTransient) override { m_isTransient = isTransient; }

    void update() override;
    void drawControl(Graphics::CGraphics &) override {}
    void enableControl() override { m_isEnabled = true; }
    void disableControl() override { m_isEnabled = false; }
    bool isEnabled() const { return m_isEnabled; }
    void setPrimaryImage(Graphics::IImage *image) override { m_primaryImage.setPointer(image); }
    void setDisabledImage(Graphics::IImage *image) override { m_disabledImage.setPointer(image); }
    Graphics::IImage *getPrimaryImage() const { return m_primaryImage.getPointer(); }
    Graphics::IImage *getDisabledImage() const { return m_disabledImage.getPointer(); }
    const MathTools::CRect &getNormalisedArea() const override { return m_normalisedArea; }
    void setDefaultControlColours(const Basics::CAlphaColour &background,
                                  const Basics::CAlphaColour &frame) override;
    const Basics::CAlphaColour &getBackgroundColour() const { return m_backgroundColour; }
    const Basics::CAlphaColour &getFrameColour() const { return m_frameColour; }
    void setDefaultDrawing(bool isDefaultDrawing) override {
        m_isDefaultDrawing = isDefaultDrawing;
    }
    bool isDefaultDrawing() const { return m_isDefaultDrawing; }

    bool drawEnabledControl(Graphics::CGraphics &graphics) override;
    void drawPrimaryImage(Graphics::CGraphics &graphics, bool isDefaultDrawing) override;
    void drawImage(Graphics::CGraphics &graphics) override;

protected:
    /// Draws a whole image, scaled to the control. Null draws nothing.
    void drawInto(Graphics::CGraphics &graphics, Graphics::IImage *image) const;

    // These report to the listener, if there is one. The listener may remove the control.
    void sendActionEvent();
    void sendActionEvent(const Events::CMouseEvent &event);  ///< with the event's modifiers

private:
    static Tessitor::Basics::TClassRecord<CControl> s_class;

    std::int32_t m_referenceCount = 0;
    Listeners::IActionListener *m_listener;  // not owned, may be null
    IControlRoot *m_root;                    // not owned, never null
    IControl *m_parent = nullptr;            // not owned
    bool m_isMouseEnabled = true;
    bool m_isKeyboardEnabled = false;
    bool m_isDropFileEnabled = false;
    bool m_isEnabled = true;
    bool m_isDefaultDrawing = false;
    bool m_isTransient = false;
    std::int32_t m_id;
    Tessitor::Basics::CString m_description = "Control";
    double m_value = 1.0;
    MathTools::CRect m_area;  // relative to the root's origin
    MathTools::CDimension m_dimension;
    MathTools::CRect m_absoluteRect;  // in window coordinates
    MathTools::CRect m_normalisedArea;
    Collections::TAutomaticPointer<Graphics::IImage> m_primaryImage;
    Collections::TAutomaticPointer<Graphics::IImage> m_disabledImage;
    Basics::CAlphaColour m_frameColour{0, 0, 0};
    Basics::CAlphaColour m_backgroundColour{255, 255, 255};
};

}  // namespace Tessitor::GUI::Controls
