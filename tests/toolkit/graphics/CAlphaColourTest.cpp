#include "toolkit/graphics/CAlphaColour.h"

#include "toolkit/graphics/StaticColours.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Basics::CColour;
namespace StaticColours = Tessitor::GUI::Basics::StaticColours;

TEST(CAlphaColour, IsOpaqueWhiteAtFirst) {
    EXPECT_EQ(CAlphaColour(), CAlphaColour(255, 255, 255, 255));
}

TEST(CAlphaColour, DescribesItself) {
    char description[32];
    CAlphaColour(1, 2, 3, 4).getObjectDescription(description, sizeof description);
    EXPECT_STREQ(description, "[1,2,3,4]");
}

TEST(CAlphaColour, ReadsItsOwnText) {
    const CAlphaColour colour(1, 20, 255, 128);
    EXPECT_STREQ(colour.toString().getString(), "1,20,255,128");
    EXPECT_EQ(CAlphaColour(colour.toString()), colour);
}

TEST(CAlphaColour, ReadsAnyOtherTextAsTransparentBlack) {
    for (const char *text : {"", "1", "1,2,3", "1,2,3,4,5", "1;2;3;4"})
        EXPECT_EQ(CAlphaColour(Tessitor::Basics::CString(text)), CAlphaColour(0, 0, 0, 0)) << text;
}

TEST(CAlphaColour, ComparesAlphaToo) {
    EXPECT_FALSE(CAlphaColour(1, 2, 3, 4) == CAlphaColour(1, 2, 3, 5));
    EXPECT_FALSE(CAlphaColour(1, 2, 3, 4) == CAlphaColour(1, 2, 0, 4));
}

TEST(CAlphaColour, SetsThreeOrFourChannels) {
    CAlphaColour colour;
    colour.setAllColours(1, 2, 3, 4);
    EXPECT_EQ(colour, CAlphaColour(1, 2, 3, 4));
    colour.setAllColours(5, 6, 7);
    EXPECT_EQ(colour, CAlphaColour(5, 6, 7, 4));
}

TEST(CAlphaColour, BlendRoundsTheDivisionBy255) {
    for (int alpha = 0; alpha <= 255; ++alpha)
        for (int foreground = 0; foreground <= 255; foreground += 5)
            for (int background = 0; background <= 255; background += 3) {
                const int sum = foreground * alpha + background * (255 - alpha);
                ASSERT_EQ(CAlphaColour::alphaBlend(foreground, background, alpha),
                          (sum + 127) / 255)
                    << foreground << " over " << background << " with alpha " << alpha;
            }
}

TEST(CAlphaColour, BlendRunsFromTheFirstColourToTheSecond) {
    const CAlphaColour first(10, 20, 30, 1), second(110, 220, 130, 2);
    EXPECT_EQ(CAlphaColour::blend(first, second, 0), CAlphaColour(10, 20, 30, 255));
    EXPECT_EQ(CAlphaColour::blend(first, second, 255), CAlphaColour(110, 220, 130, 255));
    EXPECT_EQ(CAlphaColour::blend(first, second, 51), CAlphaColour(30, 60, 50, 255));
}

TEST(CAlphaColour, LightensHalfWayToWhite) {
    CAlphaColour colour(0, 100, 255, 7);
    colour.lighten();
    EXPECT_EQ(colour, CAlphaColour(128, 178, 255, 255));
}

TEST(CAlphaColour, DarkensHalfWayToBlack) {
    CAlphaColour colour(0, 100, 255, 7);
    colour.darken();
    EXPECT_EQ(colour, CAlphaColour(0, 50, 127, 255));
}

TEST(StaticColours, AreTheColoursOfTheLibrary) {
    EXPECT_EQ(StaticColours::black, CColour(0, 0, 0));
    EXPECT_EQ(StaticColours::white, CColour(255, 255, 255));
    EXPECT_EQ(StaticColours::alphaTransparent, CAlphaColour(0, 0, 0, 0));
    EXPECT_EQ(StaticColours::alphaBlack, CAlphaColour(0, 0, 0, 255));
    EXPECT_EQ(StaticColours::alphaWhite, CAlphaColour(255, 255, 255, 255));
    EXPECT_EQ(StaticColours::alphaRed, CAlphaColour(243, 32, 32, 255));
    EXPECT_EQ(StaticColours::alphaGreen, CAlphaColour(102, 200, 85, 255));
    EXPECT_EQ(StaticColours::alphaBlue, CAlphaColour(85, 86, 200, 255));
    EXPECT_EQ(StaticColours::alphaYellow, CAlphaColour(219, 230, 49, 255));
    EXPECT_EQ(StaticColours::alphaOrange, CAlphaColour(239, 149, 41, 255));
    EXPECT_EQ(StaticColours::alphaTeal, CAlphaColour(116, 184, 188, 255));
    EXPECT_EQ(StaticColours::alphaPurple, CAlphaColour(153, 116, 188, 255));
    EXPECT_EQ(StaticColours::alphaPink, CAlphaColour(226, 74, 160, 255));
    EXPECT_EQ(StaticColours::alphaLightGrey, CAlphaColour(208, 208, 208, 255));
    EXPECT_EQ(StaticColours::alphaDarkGrey, CAlphaColour(147, 147, 147, 255));
}

}  // namespace
