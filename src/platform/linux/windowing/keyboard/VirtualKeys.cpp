#include "platform/linux/windowing/keyboard/VirtualKeys.h"

#include <string_view>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

/// Symbols that follow each other, and so do their virtual keys.
struct SKeyRange {
    xcb_keysym_t first, last;
    std::uint8_t virtualKey;  // of the first
};

// Left and right modifiers differ only in their scan codes, as on Windows.
constexpr SKeyRange keyRanges[] = {
    {XKB_KEY_0, XKB_KEY_9, '0'},
    {XKB_KEY_a, XKB_KEY_z, 'A'},
    {XKB_KEY_A, XKB_KEY_Z, 'A'},

    {XKB_KEY_Cancel, XKB_KEY_Cancel, 3},
    {XKB_KEY_BackSpace, XKB_KEY_BackSpace, 8},
    {XKB_KEY_Tab, XKB_KEY_Tab, VirtualTab},
    {XKB_KEY_ISO_Left_Tab, XKB_KEY_ISO_Left_Tab, VirtualTab},
    {XKB_KEY_Clear, XKB_KEY_Clear, 12},
    {XKB_KEY_Return, XKB_KEY_Return, 13},
    {XKB_KEY_Shift_L, XKB_KEY_Shift_L, VirtualShift},
    {XKB_KEY_Shift_R, XKB_KEY_Shift_R, VirtualShift},
    {XKB_KEY_Control_L, XKB_KEY_Control_L, VirtualControl},
    {XKB_KEY_Control_R, XKB_KEY_Control_R, VirtualControl},
    {XKB_KEY_Meta_L, XKB_KEY_Meta_L, VirtualAlt},
    {XKB_KEY_Meta_R, XKB_KEY_Meta_R, VirtualAlt},
    {XKB_KEY_Alt_L, XKB_KEY_Alt_L, VirtualAlt},
    {XKB_KEY_Alt_R, XKB_KEY_Alt_R, VirtualAlt},
    {XKB_KEY_ISO_Level3_Shift, XKB_KEY_ISO_Level3_Shift, VirtualAlt},
    {XKB_KEY_Mode_switch, XKB_KEY_Mode_switch, VirtualAlt},
    {XKB_KEY_Pause, XKB_KEY_Pause, 19},
    {XKB_KEY_Caps_Lock, XKB_KEY_Caps_Lock, 20},
    {XKB_KEY_Escape, XKB_KEY_Escape, 27},
    {XKB_KEY_space, XKB_KEY_space, 32},
    {XKB_KEY_Page_Up, XKB_KEY_Page_Down, 33},
    {XKB_KEY_End, XKB_KEY_End, 35},
    {XKB_KEY_Home, XKB_KEY_Down, 36},  // home, left, up, right, down
    {XKB_KEY_Select, XKB_KEY_Select, 41},
    {XKB_KEY_Execute, XKB_KEY_Execute, 43},
    {XKB_KEY_Print, XKB_KEY_Print, 44},
    {XKB_KEY_Insert, XKB_KEY_Insert, 45},
    {XKB_KEY_Delete, XKB_KEY_Delete, 46},
    {XKB_KEY_Help, XKB_KEY_Help, 47},
    {XKB_KEY_Super_L, XKB_KEY_Super_R, 91},
    {XKB_KEY_Menu, XKB_KEY_Menu, 93},

    {XKB_KEY_KP_Tab, XKB_KEY_KP_Tab, VirtualTab},
    {XKB_KEY_KP_Enter, XKB_KEY_KP_Enter, 13},
    {XKB_KEY_KP_Home, XKB_KEY_KP_Down, 36},
    {XKB_KEY_KP_Page_Up, XKB_KEY_KP_Page_Down, 33},
    {XKB_KEY_KP_End, XKB_KEY_KP_End, 35},
    {XKB_KEY_KP_Begin, XKB_KEY_KP_Begin, 12},
    {XKB_KEY_KP_Insert, XKB_KEY_KP_Insert, 45},
    {XKB_KEY_KP_Delete, XKB_KEY_KP_Delete, 46},
    {XKB_KEY_KP_0, XKB_KEY_KP_9, 96},
    {XKB_KEY_KP_Multiply, XKB_KEY_KP_Divide, 106},  // * + separator - . /

    {XKB_KEY_F1, XKB_KEY_F24, 112},
    {XKB_KEY_Num_Lock, XKB_KEY_Num_Lock, 144},
    {XKB_KEY_Scroll_Lock, XKB_KEY_Scroll_Lock, 145},

    {XKB_KEY_semicolon, XKB_KEY_semicolon, 186},
    {XKB_KEY_equal, XKB_KEY_equal, 187},
    {XKB_KEY_plus, XKB_KEY_plus, 187},
    {XKB_KEY_comma, XKB_KEY_slash, 188},  // , - . /
    {XKB_KEY_grave, XKB_KEY_grave, 192},
    {XKB_KEY_bracketleft, XKB_KEY_bracketright, 219},  // [ \ ]
    {XKB_KEY_apostrophe, XKB_KEY_apostrophe, 222},
    {XKB_KEY_less, XKB_KEY_less, 226},
};

// The keys of an American keyboard from keycode 10 on. A blank is a key that has a symbol anyway.
constexpr xcb_keycode_t firstKeycode = 10;
constexpr std::string_view americanKeys = "1234567890\xBD\xBB  "
                                          "QWERTYUIOP\xDB\xDD  "
                                          "ASDFGHJKL\xBA\xDE\xC0 \xDC"
                                          "ZXCVBNM\xBC\xBE\xBF";

}  // namespace

std::uint8_t virtualKeyOf(xcb_keysym_t keysym) {
    for (const auto &[first, last, virtualKey] : keyRanges)
        if (keysym >= first && keysym <= last)
            return static_cast<std::uint8_t>(virtualKey + (keysym - first));
    return 0;
}

std::uint8_t virtualKeyAt(xcb_keycode_t keycode) {
    const auto place = static_cast<std::size_t>(keycode - firstKeycode);
    if (keycode < firstKeycode || place >= americanKeys.size() || americanKeys[place] == ' ')
        return VirtualUnknown;
    return static_cast<std::uint8_t>(americanKeys[place]);
}
