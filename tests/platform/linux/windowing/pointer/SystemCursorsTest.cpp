#include "platform/linux/windowing/pointer/SystemCursors.h"

#include <gtest/gtest.h>
#include <string>

namespace {

struct SCase {
    int number;
    int glyph;         // of X11's font
    std::string name;  // one that the themes of all desktops know
};

TEST(SystemCursors, HaveNamesInThemesAndGlyphs) {
    const SCase cases[] = {
        {32512, 68, "left_ptr"},             // XC_left_ptr
        {32649, 60, "hand2"},                // XC_hand2
        {32514, 150, "watch"},               // XC_watch
        {32645, 116, "sb_v_double_arrow"},   // XC_sb_v_double_arrow
        {32644, 108, "sb_h_double_arrow"},   // XC_sb_h_double_arrow
        {32513, 152, "xterm"},               // XC_xterm
        {32642, 14, "bottom_right_corner"},  // XC_bottom_right_corner
        {32646, 52, "fleur"},                // XC_fleur
    };
    for (const auto &[number, glyph, name] : cases) {
        const SSystemCursor *cursor = findSystemCursor(number);
        ASSERT_NE(cursor, nullptr) << number;
        EXPECT_EQ(cursor->number, number);
        EXPECT_EQ(cursor->glyph, glyph);
        bool hasName = false;
        for (const std::string known : cursor->names)
            hasName = hasName || known == name;
        EXPECT_TRUE(hasName) << name;
    }
}

TEST(SystemCursors, AreAllThatThereAre) {
    for (const int number : {-1, 0, 32511, 32515, 32643, 32648, 32650})
        EXPECT_EQ(findSystemCursor(number), nullptr) << number;
}

}  // namespace
