#include "platform/linux/windowing/keyboard/KeyCharacters.h"

#include "platform/linux/windowing/keyboard/VirtualKeys.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

/// What a key of an American keyboard types.
void expectCharacter(xcb_keysym_t keysym, bool isControlDown, int number, char character) {
    const auto result = characterOf(keysym, virtualKeyOf(keysym), isControlDown);
    EXPECT_EQ(result.number, number) << keysym;
    EXPECT_EQ(result.character, character) << keysym;
}

TEST(KeyCharacters, AsciiIsASingleByte) {
    for (int character = 0x20; character < 0x7F; ++character)
        expectCharacter(static_cast<xcb_keysym_t>(character), false, 1,
                        static_cast<char>(character));
    expectCharacter(XKB_KEY_KP_7, false, 1, '7');
    expectCharacter(XKB_KEY_KP_Decimal, false, 1, '.');
}

TEST(KeyCharacters, EditingKeysTypeControlCharacters) {
    expectCharacter(XKB_KEY_Return, false, 1, 13);
    expectCharacter(XKB_KEY_KP_Enter, false, 1, 13);
    expectCharacter(XKB_KEY_Escape, false, 1, 27);
    expectCharacter(XKB_KEY_Tab, false, 1, 9);
    expectCharacter(XKB_KEY_ISO_Left_Tab, false, 1, 9);
    expectCharacter(XKB_KEY_BackSpace, false, 1, 8);
}

TEST(KeyCharacters, ControlMakesControlCharacters) {
    expectCharacter(XKB_KEY_a, true, 1, 1);
    expectCharacter(XKB_KEY_A, true, 1, 1);
    expectCharacter(XKB_KEY_z, true, 1, 26);
    expectCharacter(XKB_KEY_at, true, 1, 0);
    expectCharacter(XKB_KEY_bracketleft, true, 1, 27);
    expectCharacter(XKB_KEY_backslash, true, 1, 28);
    expectCharacter(XKB_KEY_bracketright, true, 1, 29);
    expectCharacter(XKB_KEY_asciicircum, true, 1, 30);
    expectCharacter(XKB_KEY_underscore, true, 1, 31);
    expectCharacter(XKB_KEY_Return, true, 1, 10);
    expectCharacter(XKB_KEY_Escape, true, 1, 27);
    expectCharacter(XKB_KEY_BackSpace, true, 1, 127);
    expectCharacter(XKB_KEY_space, true, 1, 32);
    for (xcb_keysym_t keysym : {XKB_KEY_1, XKB_KEY_Tab, XKB_KEY_comma, XKB_KEY_F1})
        expectCharacter(keysym, true, 0, '\0');
}

TEST(KeyCharacters, ControlGoesByTheKeyInOtherAlphabets) {
    const auto result = characterOf(XKB_KEY_Cyrillic_ef, 'A', true);
    EXPECT_EQ(result.number, 1);
    EXPECT_EQ(result.character, 1);
}

TEST(KeyCharacters, OtherCharactersHaveNoSingleByte) {
    expectCharacter(XKB_KEY_adiaeresis, false, 0, '\0');
    expectCharacter(XKB_KEY_EuroSign, false, 0, '\0');
    EXPECT_EQ(textOf(XKB_KEY_adiaeresis), "\xC3\xA4");
    EXPECT_EQ(textOf(XKB_KEY_EuroSign), "\xE2\x82\xAC");
    EXPECT_EQ(textOf(0x0101F600), "\xF0\x9F\x98\x80");
}

TEST(KeyCharacters, KeysThatTypeNothingHaveNone) {
    for (xcb_keysym_t keysym :
         {0, XKB_KEY_Shift_L, XKB_KEY_Left, XKB_KEY_Delete, XKB_KEY_F1, XKB_KEY_KP_Delete}) {
        expectCharacter(keysym, false, 0, '\0');
        EXPECT_EQ(textOf(keysym), "") << keysym;
    }
}

TEST(KeyCharacters, AnAccentWaitsForItsLetter) {
    expectCharacter(XKB_KEY_dead_grave, false, -1, '\0');
    expectCharacter(XKB_KEY_dead_acute, false, -1, '\0');
    EXPECT_EQ(textOf(XKB_KEY_dead_acute), "");
}

TEST(KeyCharacters, ControlCharactersAreNoText) {
    EXPECT_EQ(textOf(XKB_KEY_a), "a");
    for (xcb_keysym_t keysym : {XKB_KEY_Return, XKB_KEY_Tab, XKB_KEY_Escape, XKB_KEY_BackSpace})
        EXPECT_EQ(textOf(keysym), "") << keysym;
}

}  // namespace
