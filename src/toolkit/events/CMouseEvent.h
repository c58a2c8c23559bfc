#pragma once

#include "foundation/CCountedObject.h"
#include "toolkit/events/CMouse.h"

namespace Tessitor::GUI::Events {

/// The numbers of the window messages.
enum class EMouseEventType : std::int32_t {
    Movement = 512,
    LeftDown = 513,
    LeftUp = 514,
    DoubleClick = 515,
    RightDown = 516,
    RightUp = 517,
    Scroll = 522,
    Leaving = 675
};

/// Something that the mouse did. The event does not copy the position: it belongs to the mouse of
/// the window, and whoever passes an event on to a control moves it into that control's own
/// coordinates for the time of the call. [gui thread]
class CMouseEvent : public Tessitor::Basics::CCountedObject {
public:
    /// @param mouse  not owned; null for none.
    explicit CMouseEvent(Windowing::CMouse *mouse = nullptr) : m_mouse(mouse) {
        s_class.incrementInstanceCount();
    }
    CMouseEvent(const CMouseEvent &) = delete;
    CMouseEvent &operator=(const CMouseEvent &) = delete;
    ~CMouseEvent() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void setType(EMouseEventType type) { m_type = type; }
    EMouseEventType getType() const { return m_type; }

    void setMouse(Windowing::CMouse *mouse) { m_mouse = mouse; }
    Windowing::CMouse *getMouse() const { return m_mouse; }
    void setMousePosition(const MathTools::CPoint &position);  ///< ignored without a mouse
    /// Relative to whoever receives the event; 0, 0 without a mouse.
    MathTools::CPoint getMousePosition() const;

    void setWheelAmount(double notches) { m_wheelAmount = notches; }
    double getWheelAmount() const { return m_wheelAmount; }  ///< in notches; up is positive

    void setModifiers(bool isControlDown, bool isShiftDown, bool isAltDown);
    void copyModifiers(const CMouseEvent &other);
    bool isControlDown() const { return m_isControlDown; }
    bool isShiftDown() const { return m_isShiftDown; }
    bool isAltDown() const { return m_isAltDown; }

private:
    static Tessitor::Basics::TClassRecord<CMouseEvent> s_class;

    EMouseEventType m_type = EMouseEventType::Movement;
    Windowing::CMouse *m_mouse;
    double m_wheelAmount = 0.0;
    bool m_isControlDown = false;
    bool m_isShiftDown = false;
    bool m_isAltDown = false;
};

}  // namespace Tessitor::GUI::Events
