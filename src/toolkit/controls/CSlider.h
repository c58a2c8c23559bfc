#pragma once

#include "toolkit/controls/CControl.h"

namespace Tessitor::GUI::Controls {

/// A slider. Its handle is at the left or at the top for the value 1, and at the other end for 0.
/// It is vertical unless it is wider than high when it first gets an area that is not empty.
///
/// The primary image holds three pictures of the handle side by side: normal, with the mouse over
/// it, and pressed. Without it, and with default drawing, a plain handle is drawn.
class CSlider : public CControl {
public:
    enum class EHandleState { Normal, MouseOver, Pressed };

    CSlider(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
            Listeners::IActionListener *listener);
    ~CSlider() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Outside the handle, moves its centre to the mouse and reports.
    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    /// Kept: a release over the handle does not unlock the mouse.
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    /// While dragging, reports each movement, even if the value stays.
    void handleMouseMovement(Events::CMouseEvent &event) override;
    /// Moves the handle by five pixels, or by one with the shift key, and reports.
    void handleMouseScroll(Events::CMouseEvent &event) override;
    void handleMouseLeaving(Events::CMouseEvent &event) override;

    void setValue(double value) override;  ///< outside 0 to 1, the handle stays where it is
    void setArea(const MathTools::CRect &area) override;
    void setPrimaryImage(Graphics::IImage *image) override;
    void drawControl(Graphics::CGraphics &graphics) override;

    bool isVertical() const { return m_isVertical; }
    bool isDragging() const { return m_isDragging; }
    EHandleState getHandleState() const { return m_handleState; }
    const MathTools::CRect &getHandleArea() const { return m_handleArea; }  ///< in the control
    double getRange() const { return m_range; }  ///< how far the handle can move, in pixels

private:
    std::int32_t along(const MathTools::CPoint &point) const;
    std::int32_t handleLength() const;
    bool isOverHandle(const Events::CMouseEvent &event) const;
    void chooseOrientation();
    void layOut();
    void placeHandleByValue();
    void placeHandle(std::int32_t position);
    void moveHandle(std::int64_t position);
    void checkHover(const Events::CMouseEvent &event);
    void drawHandle(Graphics::CGraphics &graphics);

    static Tessitor::Basics::TClassRecord<CSlider> s_class;

    MathTools::CRect m_handleArea;       // in the control
    MathTools::CRect m_handleImageArea;  // in the primary image
    MathTools::CPoint m_grabOffset;      // of the press from the handle's origin
    EHandleState m_handleState = EHandleState::Normal;
    bool m_isVertical = true;
    bool m_isDragging = false;
    double m_range = 0.0;  // pixels; the control's length less the handle's
};

}  // namespace Tessitor::GUI::Controls
