#pragma once

#include "foundation/CCountedObject.h"

namespace Tessitor::GUI::Controls {
class IControl;
}

namespace Tessitor::GUI::Events {

class CMouseEvent;

/// Something that a control reports to its listener, such as a new value. [gui thread]
class CActionEvent : public Tessitor::Basics::CCountedObject {
public:
    /// @param sender  not referenced. Throws CException if it is null.
    explicit CActionEvent(Controls::IControl *sender);
    CActionEvent(Controls::IControl *sender, const CMouseEvent &event);  ///< with its modifiers
    CActionEvent(const CActionEvent &) = delete;
    CActionEvent &operator=(const CActionEvent &) = delete;
    ~CActionEvent() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    Controls::IControl *getSender() const { return m_sender; }  ///< never null
    void setEventKind(std::int32_t kind) { m_eventKind = kind; }
    std::int32_t getEventKind() const { return m_eventKind; }  ///< 0 unless the control sets it
    bool isShiftDown() const { return m_isShiftDown; }
    bool isAltDown() const { return m_isAltDown; }
    bool isControlDown() const { return m_isControlDown; }

private:
    static Tessitor::Basics::TClassRecord<CActionEvent> s_class;

    Controls::IControl *m_sender;
    std::int32_t m_eventKind = 0;
    bool m_isShiftDown = false;
    bool m_isAltDown = false;
    bool m_isControlDown = false;
};

}  // namespace Tessitor::GUI::Events
