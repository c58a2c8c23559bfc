#include "toolkit/events/CKeyboardEvent.h"

namespace Tessitor::GUI::Events {

Tessitor::Basics::TClassRecord<CKeyboardEvent> CKeyboardEvent::s_class("CKeyboardEvent",
                                                                       "CCountedObject");

namespace {

/// Virtual keys that follow each other, and so do their key codes.
struct SKeyRange {
    int first, last;
    EKeyCode keyCode;  // of the first
};

constexpr SKeyRange keyRanges[] = {
    {8, 9, EKeyCode::Backspace},     {12, 13, EKeyCode::Clear},  {16, 20, EKeyCode::Shift},
    {27, 27, EKeyCode::Escape},      {33, 40, EKeyCode::PageUp}, {44, 47, EKeyCode::PrintScreen},
    {91, 92, EKeyCode::LeftSystem},  {112, 135, EKeyCode::F1},   {144, 145, EKeyCode::NumLock},
    {160, 165, EKeyCode::LeftShift},
};

}  // namespace

void CKeyboardEvent::setCharacter(char character, bool isSpecialKey) {
    m_character = character;
    m_isSpecialKey = isSpecialKey;
}

void CKeyboardEvent::setModifiers(bool isControlDown, bool isShiftDown, bool isAltDown) {
    m_isControlDown = isControlDown;
    m_isShiftDown = isShiftDown;
    m_isAltDown = isAltDown;
}

EKeyCode CKeyboardEvent::keyCodeOf(int virtualKey) {
    for (const auto &[first, last, keyCode] : keyRanges)
        if (virtualKey >= first && virtualKey <= last)
            return static_cast<EKeyCode>(static_cast<int>(keyCode) + virtualKey - first);
    return EKeyCode::Other;
}

}  // namespace Tessitor::GUI::Events
