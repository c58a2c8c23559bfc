#include "toolkit/graphics/CColour.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Basics::CColour;

TEST(CColour, IsWhiteAtFirst) {
    EXPECT_EQ(CColour(), CColour(255, 255, 255));
}

TEST(CColour, DescribesItself) {
    char description[32];
    CColour(1, -2, 300).getObjectDescription(description, sizeof description);
    EXPECT_STREQ(description, "[1,-2,300]");
}

TEST(CColour, PacksRedLowest) {
    EXPECT_EQ(CColour(0x12, 0x34, 0x56).getNativeColour(), 0x563412u);
    EXPECT_EQ(CColour(0x112, -1, 0x56).getNativeColour(), 0x56ff12u) << "only low bytes count";
}

TEST(CColour, ComparesEachChannel) {
    const CColour colour(1, 2, 3);
    EXPECT_FALSE(colour == CColour(0, 2, 3));
    EXPECT_FALSE(colour == CColour(1, 0, 3));
    EXPECT_FALSE(colour == CColour(1, 2, 0));
    EXPECT_TRUE(colour == CColour(1, 2, 3));
}

TEST(CColour, SetsAllChannelsAtOnce) {
    CColour colour;
    colour.setAllColours(4, 5, 6);
    EXPECT_EQ(colour, CColour(4, 5, 6));
}

TEST(CColour, DrawsOpaquely) {
    EXPECT_EQ(CColour(7, 8, 9).toNative(), (SNativeColour{7, 8, 9, 255}));
}

}  // namespace
