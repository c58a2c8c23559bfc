#include "toolkit/events/CKeyboardEvent.h"

#include <gtest/gtest.h>

using Tessitor::GUI::Events::CKeyboardEvent;
using Tessitor::GUI::Events::EKeyCode;

namespace {

int codeOf(int virtualKey) {
    return static_cast<int>(CKeyboardEvent::keyCodeOf(virtualKey));
}

TEST(CKeyboardEvent, StartsWithABlankAndAnUnknownKey) {
    const CKeyboardEvent event;
    EXPECT_EQ(event.getCharacter(), ' ');
    EXPECT_EQ(static_cast<int>(event.getKeyCode()), 56);
    EXPECT_FALSE(event.isControlDown() || event.isShiftDown() || event.isAltDown());
    EXPECT_FALSE(event.isSpecialKey());
    EXPECT_TRUE(event.getClass() == "CKeyboardEvent");
}

TEST(CKeyboardEvent, NumbersTheKnownKeysInOrder) {
    const auto isKnown = [](int key) {
        return key == 8 || key == 9 || key == 12 || key == 13 || (key >= 16 && key <= 20) ||
               key == 27 || (key >= 33 && key <= 40) || (key >= 44 && key <= 47) || key == 91 ||
               key == 92 || (key >= 112 && key <= 135) || key == 144 || key == 145 ||
               (key >= 160 && key <= 165);
    };
    int next = 0;
    for (int key = -1; key <= 256; ++key)
        EXPECT_EQ(codeOf(key), isKnown(key) ? next++ : 56) << "virtual key " << key;
    EXPECT_EQ(next, 56);
}

TEST(CKeyboardEvent, NamesTheKeysByTheirNumbers) {
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(8), EKeyCode::Backspace);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(13), EKeyCode::Return);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(20), EKeyCode::CapsLock);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(27), EKeyCode::Escape);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(40), EKeyCode::Down);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(46), EKeyCode::Delete);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(135), EKeyCode::F24);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf(165), EKeyCode::RightAlt);
    EXPECT_EQ(CKeyboardEvent::keyCodeOf('A'), EKeyCode::Other);
}

TEST(CKeyboardEvent, KeepsWhatIsSet) {
    CKeyboardEvent event;
    event.setCharacter('x', true);
    event.setModifiers(true, false, true);
    event.setKeyCode(EKeyCode::F1);
    EXPECT_EQ(event.getCharacter(), 'x');
    EXPECT_TRUE(event.isSpecialKey());
    EXPECT_TRUE(event.isControlDown());
    EXPECT_FALSE(event.isShiftDown());
    EXPECT_TRUE(event.isAltDown());
    EXPECT_EQ(event.getKeyCode(), EKeyCode::F1);
    event.setModifiers(false, true, false);
    EXPECT_TRUE(event.isShiftDown());
    EXPECT_FALSE(event.isControlDown() || event.isAltDown());
}

}  // namespace
