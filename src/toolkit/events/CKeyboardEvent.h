#pragma once

#include "foundation/CCountedObject.h"
#include "toolkit/events/EKeyCode.h"

namespace Tessitor::GUI::Events {

/// A key that goes down or up. [gui thread]
class CKeyboardEvent : public Tessitor::Basics::CCountedObject {
public:
    CKeyboardEvent() { s_class.incrementInstanceCount(); }
    CKeyboardEvent(const CKeyboardEvent &) = delete;
    CKeyboardEvent &operator=(const CKeyboardEvent &) = delete;
    ~CKeyboardEvent() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// @param isSpecialKey  true if the key types no character.
    void setCharacter(char character, bool isSpecialKey);
    void setModifiers(bool isControlDown, bool isShiftDown, bool isAltDown);
    void setKeyCode(EKeyCode keyCode) { m_keyCode = keyCode; }

    char getCharacter() const { return m_character; }  ///< a blank at first
    bool isControlDown() const { return m_isControlDown; }
    bool isShiftDown() const { return m_isShiftDown; }
    bool isAltDown() const { return m_isAltDown; }
    bool isSpecialKey() const { return m_isSpecialKey; }
    EKeyCode getKeyCode() const { return m_keyCode; }  ///< Other at first

    /// @param virtualKey  the number of the key on Windows; the same number on every system.
    static EKeyCode keyCodeOf(int virtualKey);

private:
    static Tessitor::Basics::TClassRecord<CKeyboardEvent> s_class;

    char m_character = ' ';
    bool m_isControlDown = false;
    bool m_isShiftDown = false;
    bool m_isAltDown = false;
    bool m_isSpecialKey = false;
    EKeyCode m_keyCode = EKeyCode::Other;
};

}  // namespace Tessitor::GUI::Events
