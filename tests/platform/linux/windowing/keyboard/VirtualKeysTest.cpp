#include "platform/linux/windowing/keyboard/VirtualKeys.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

TEST(VirtualKeys, LettersAndDigitsAreTheirCapitals) {
    for (xcb_keysym_t i = 0; i < 26; ++i) {
        EXPECT_EQ(virtualKeyOf(XKB_KEY_a + i), 'A' + i);
        EXPECT_EQ(virtualKeyOf(XKB_KEY_A + i), 'A' + i);
    }
    for (xcb_keysym_t i = 0; i < 10; ++i)
        EXPECT_EQ(virtualKeyOf(XKB_KEY_0 + i), '0' + i);
}

TEST(VirtualKeys, FunctionKeysGoTo24) {
    for (xcb_keysym_t i = 0; i < 24; ++i)
        EXPECT_EQ(virtualKeyOf(XKB_KEY_F1 + i), 112 + i);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_F25), 0);
}

TEST(VirtualKeys, TheKeypadHasItsOwnNumbersAndSharesTheKeysThatMoveTheCursor) {
    for (xcb_keysym_t i = 0; i < 10; ++i)
        EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_0 + i), 96 + i);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Multiply), 106);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Add), 107);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Separator), 108);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Subtract), 109);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Decimal), 110);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Divide), 111);

    const xcb_keysym_t keypad[] = {XKB_KEY_KP_Page_Up, XKB_KEY_KP_Page_Down, XKB_KEY_KP_End,
                                   XKB_KEY_KP_Home,    XKB_KEY_KP_Left,      XKB_KEY_KP_Up,
                                   XKB_KEY_KP_Right,   XKB_KEY_KP_Down};
    const xcb_keysym_t cursor[] = {XKB_KEY_Page_Up, XKB_KEY_Page_Down, XKB_KEY_End,   XKB_KEY_Home,
                                   XKB_KEY_Left,    XKB_KEY_Up,        XKB_KEY_Right, XKB_KEY_Down};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(virtualKeyOf(keypad[i]), 33 + i);
        EXPECT_EQ(virtualKeyOf(cursor[i]), 33 + i);
    }
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Begin), 12);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Enter), 13);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Insert), 45);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_KP_Delete), 46);
}

TEST(VirtualKeys, LeftAndRightModifiersAreOne) {
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Shift_L), 16);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Shift_R), 16);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Control_L), 17);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Control_R), 17);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Alt_L), 18);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Alt_R), 18);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_ISO_Level3_Shift), 18);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Super_L), 91);
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Super_R), 92);
}

TEST(VirtualKeys, NamesTheOtherKeys) {
    const struct {
        xcb_keysym_t keysym;
        int virtualKey;
    } keys[] = {
        {XKB_KEY_Cancel, 3},        {XKB_KEY_BackSpace, 8},   {XKB_KEY_Tab, 9},
        {XKB_KEY_ISO_Left_Tab, 9},  {XKB_KEY_Clear, 12},      {XKB_KEY_Return, 13},
        {XKB_KEY_Pause, 19},        {XKB_KEY_Caps_Lock, 20},  {XKB_KEY_Escape, 27},
        {XKB_KEY_space, 32},        {XKB_KEY_Select, 41},     {XKB_KEY_Execute, 43},
        {XKB_KEY_Print, 44},        {XKB_KEY_Insert, 45},     {XKB_KEY_Delete, 46},
        {XKB_KEY_Help, 47},         {XKB_KEY_Menu, 93},       {XKB_KEY_Num_Lock, 144},
        {XKB_KEY_Scroll_Lock, 145}, {XKB_KEY_semicolon, 186}, {XKB_KEY_equal, 187},
        {XKB_KEY_plus, 187},        {XKB_KEY_comma, 188},     {XKB_KEY_minus, 189},
        {XKB_KEY_period, 190},      {XKB_KEY_slash, 191},     {XKB_KEY_grave, 192},
        {XKB_KEY_bracketleft, 219}, {XKB_KEY_backslash, 220}, {XKB_KEY_bracketright, 221},
        {XKB_KEY_apostrophe, 222},  {XKB_KEY_less, 226},
    };
    for (const auto &[keysym, virtualKey] : keys)
        EXPECT_EQ(virtualKeyOf(keysym), virtualKey) << keysym;
    EXPECT_EQ(virtualKeyOf(XKB_KEY_Cyrillic_ef), 0);
    EXPECT_EQ(virtualKeyOf(0), 0);
}

TEST(VirtualKeys, AKeyIsKnownByItsPlaceOnAnAmericanKeyboard) {
    EXPECT_EQ(virtualKeyAt(10), '1');
    EXPECT_EQ(virtualKeyAt(19), '0');
    EXPECT_EQ(virtualKeyAt(20), 189);
    EXPECT_EQ(virtualKeyAt(24), 'Q');
    EXPECT_EQ(virtualKeyAt(35), 221);
    EXPECT_EQ(virtualKeyAt(38), 'A');
    EXPECT_EQ(virtualKeyAt(47), 186);
    EXPECT_EQ(virtualKeyAt(49), 192);
    EXPECT_EQ(virtualKeyAt(51), 220);
    EXPECT_EQ(virtualKeyAt(52), 'Z');
    EXPECT_EQ(virtualKeyAt(61), 191);
}

TEST(VirtualKeys, OtherPlacesAreUnknown) {
    for (int keycode : {0, 9, 22, 23, 36, 50, 62, 255})
        EXPECT_EQ(virtualKeyAt(static_cast<xcb_keycode_t>(keycode)), 255) << keycode;
}

}  // namespace
