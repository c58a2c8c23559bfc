#include "corvel/plot/Palette.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

using namespace Tessitor::Tool;

namespace {

// Relative luminance and contrast as the Web Content Accessibility Guidelines define them
double luminance(const Colour &colour) {
    const auto linear = [](int percent) {
        const double value = percent / 100.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour[0]) + 0.7152 * linear(colour[1]) + 0.0722 * linear(colour[2]);
}

double contrast(EInk a, EInk b, ETheme theme) {
    const double first = luminance(colourOf(a, theme)), second = luminance(colourOf(b, theme));
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace

TEST(Palette, TextAndLinesCanBeSeenOnEveryBackground) {
    for (const ETheme theme : {ETheme::Light, ETheme::Dark})
        for (const EInk background : {EInk::Paper, EInk::Panel}) {
            for (const EInk text : {EInk::Text, EInk::Muted})
                EXPECT_GE(contrast(text, background, theme), 4.5) << static_cast<int>(text);
            for (const EInk line : {EInk::Frame, EInk::Blue, EInk::Orange, EInk::Green})
                EXPECT_GE(contrast(line, background, theme), 3.0) << static_cast<int>(line);
        }
}

TEST(Palette, NoTwoInksHaveTheSameColour) {
    for (const ETheme theme : {ETheme::Light, ETheme::Dark}) {
        std::set<Colour> colours;
        for (int ink = 0; ink < inkCount; ++ink)
            colours.insert(colourOf(static_cast<EInk>(ink), theme));
        EXPECT_EQ(colours.size(), static_cast<std::size_t>(inkCount));
    }
}

TEST(Palette, TheViewersThemeStartsFromLight) {
    EXPECT_EQ(colourOf(EInk::Text, ETheme::Viewer), colourOf(EInk::Text, ETheme::Light));
    EXPECT_NE(colourOf(EInk::Text, ETheme::Dark), colourOf(EInk::Text, ETheme::Light));
}
