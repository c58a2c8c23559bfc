#include "platform/linux/drawing/DrawText.h"

#include "platform/linux/drawing/CCanvas.h"
#include "platform/linux/drawing/CFontConfiguration.h"
#include "platform/linux/drawing/CLinuxFont.h"
#include "platform/linux/drawing/FontRecords.h"

#include <gmock/gmock.h>

namespace {

constexpr SNativeColour white = {255, 255, 255, 255};
constexpr std::uint32_t opaqueWhite = 0xffffffff;

// left, top, right, bottom of the ink; each within a pixel, since systems smooth edges differently
void expectNear(const SNativeRect &ink, const SNativeRect &expected, const std::string &message) {
    EXPECT_NEAR(ink.left, expected.left, 1) << message;
    EXPECT_NEAR(ink.top, expected.top, 1) << message;
    EXPECT_NEAR(ink.right, expected.right, 1) << message;
    EXPECT_NEAR(ink.bottom, expected.bottom, 1) << message;
}

class DrawText : public testing::Test {
protected:
    SNativeRect smoothInk(const char *text, int horizontal, int vertical) const {
        CCanvas canvas(220, 120);
        drawSmoothText(canvas.getPixels(), text, {10, 10, 210, 110}, font, white, horizontal,
                       vertical);
        return canvas.getInkArea();
    }
    SNativeRect plainInk(const char *text, unsigned format) const {
        CCanvas canvas(220, 120);
        drawPlainText(canvas.getPixels(), text, {10, 10, 210, 110}, font, white, format);
        return canvas.getInkArea();
    }

    CLinuxFont font{arial(-11)};
};

TEST_F(DrawText, PutsSmoothTextWhereGdiPlusPutsIt) {
    const struct {
        const char *text;
        int horizontal, vertical;
        SNativeRect ink;
    } cases[] = {
        {"H", 0, 0, {12, 12, 20, 20}},        {"H", 1, 1, {106, 56, 114, 64}},
        {"H", 2, 2, {200, 100, 208, 108}},    {"WWWW", 0, 0, {12, 12, 53, 20}},
        {"WWWW", 1, 1, {90, 56, 131, 64}},    {"WWWW", 2, 2, {168, 100, 209, 108}},
        {"Hg  ", 0, 0, {12, 12, 26, 22}},     {"Hg  ", 1, 1, {100, 56, 114, 66}},
        {"Hg  ", 2, 2, {188, 100, 202, 110}}, {"HHHH\nH", 0, 0, {12, 12, 44, 32}},
        {"HHHH\nH", 1, 1, {94, 50, 126, 70}}, {"HHHH\nH", 2, 2, {176, 88, 208, 108}},
    };
    for (const auto &[text, horizontal, vertical, ink] : cases)
        expectNear(smoothInk(text, horizontal, vertical), ink,
                   text + std::to_string(horizontal) + std::to_string(vertical));
}

TEST_F(DrawText, RoundsTheMarginOfSmoothText) {
    const struct {
        std::int32_t size, margin;
    } cases[] = {{8, 1}, {9, 2}, {11, 2}, {14, 2}, {15, 3}, {20, 3}};
    for (const auto &[size, margin] : cases) {
        const CLinuxFont sized(arial(-size));
        CCanvas smooth(60, 40), plain(60, 40);
        drawSmoothText(smooth.getPixels(), "H", {10, 10, 60, 40}, sized, white, 0, 0);
        drawPlainText(plain.getPixels(), "H", {10, 10, 60, 40}, sized, white, 0);
        EXPECT_EQ(smooth.getInkArea().left, plain.getInkArea().left + margin) << size;
    }
}

TEST_F(DrawText, RoundsTheCentreUpForSmoothTextAndDownForPlainText) {
    // H is 8 pixels wide, and a line is 12 high. Both rectangles leave odd numbers of pixels.
    for (const SNativeRect &rect : {SNativeRect{10, 10, 31, 31}, SNativeRect{10, 10, 31, 21}}) {
        CCanvas smooth(60, 40), plain(60, 40);
        drawSmoothText(smooth.getPixels(), "H", rect, font, white, 1, 1);
        drawPlainText(plain.getPixels(), "H", rect, font, white, 1 | 4 | 32);
        EXPECT_EQ(smooth.getInkArea().top, plain.getInkArea().top + 1) << rect.bottom;
        EXPECT_EQ(smooth.getInkArea().left, plain.getInkArea().left + 1) << rect.bottom;
    }
}

TEST_F(DrawText, PutsPlainTextWhereGdiPutsIt) {
    const struct {
        const char *text;
        unsigned format;
        SNativeRect ink;
    } cases[] = {
        {"WWWW", 0, {10, 12, 50, 20}},
        {"WWWW", 1 | 4 | 32, {90, 56, 130, 64}},
        {"WWWW", 2 | 8 | 32, {170, 100, 210, 108}},
        {"a\nb", 0, {10, 14, 16, 32}},
        {"a\nb", 1, {107, 14, 113, 32}},
        {"a\nb", 2, {204, 14, 210, 32}},
        {"WW\nWW", 32, {10, 12, 50, 20}},
    };
    for (const auto &[text, format, ink] : cases)
        expectNear(plainInk(text, format), ink, text + std::to_string(format));
}

TEST_F(DrawText, AlignsPlainTextVerticallyOnlyOnASingleLine) {
    EXPECT_EQ(plainInk("a", 4).top, plainInk("a", 0).top);
    EXPECT_EQ(plainInk("a", 8).top, plainInk("a", 0).top);
}

TEST_F(DrawText, DrawsAnAmpersandAsItself) {
    EXPECT_GT(plainInk("a&b", 32).right, plainInk("ab", 32).right + 4);
    EXPECT_EQ(plainInk("b&x", 32).bottom, plainInk("bx", 32).bottom) << "no line below the x";
}

TEST_F(DrawText, CutsAtTheRectangleAndTheClip) {
    CCanvas canvas(100, 40);
    canvas.setClip({0, 0, 30, 12});
    drawSmoothText(canvas.getPixels(), "WWWWWWWWWW\nWWWWWWWWWW", {20, 5, 90, 35}, font, white, 0,
                   0);
    expectNear(canvas.getInkArea(), {22, 7, 30, 12}, "smooth");
    EXPECT_GE(canvas.getInkArea().left, 20);
    EXPECT_LE(canvas.getInkArea().right, 30);
    EXPECT_LE(canvas.getInkArea().bottom, 12);

    CCanvas plain(100, 40);
    drawPlainText(plain.getPixels(), "WWWWWWWWWW", {20, 5, 41, 12}, font, white, 2);
    expectNear(plain.getInkArea(), {20, 7, 41, 12}, "plain, right-aligned");
    EXPECT_GE(plain.getInkArea().left, 20);
    EXPECT_LE(plain.getInkArea().right, 41);
    EXPECT_LE(plain.getInkArea().bottom, 12);
}

TEST_F(DrawText, DrawsNothingInAnEmptyRectangle) {
    CCanvas canvas(100, 40);
    drawSmoothText(canvas.getPixels(), "WWWW", {10, 10, 10, 30}, font, white, 0, 0);
    drawSmoothText(canvas.getPixels(), "WWWW", {50, 30, 10, 10}, font, white, 0, 0);
    EXPECT_EQ(canvas.countInk(), 0u);
}

TEST_F(DrawText, SurvivesRectanglesOfAnySize) {
    CCanvas canvas(20, 20);
    for (int alignment : {0, 1, 2})
        for (const SNativeRect &rect :
             {SNativeRect{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX},
              SNativeRect{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN},
              SNativeRect{INT32_MIN, INT32_MIN, 5, 5}, SNativeRect{5, 5, INT32_MAX, INT32_MAX}}) {
            drawSmoothText(canvas.getPixels(), "a\nb", rect, font, white, alignment, alignment);
            drawPlainText(canvas.getPixels(), "a\nb", rect, font, white, 40);
        }
    EXPECT_GT(canvas.countInk(), 0u) << "the last rectangle begins inside the picture";
}

// The ink of a text that starts at 20, 20
std::size_t inkWithin(const INativeFont &font, int alignment, const SNativeRect &rect) {
    CCanvas canvas(rect.right + 20, rect.bottom + 20);
    drawSmoothText(canvas.getPixels(), "Wfjgy Q0", rect, font, white, alignment, 0);
    return canvas.countInk();
}

TEST(NativeSmoothTextSize, LeavesRoomForTheWholeText) {
    for (std::int32_t size = 8; size <= 48; ++size)
        for (const bool italic : {false, true})
            for (const std::int32_t weight : {400, 700}) {
                SNativeFontRecord record = arial(-size);
                record.italic = italic ? 1 : 0;
                record.weight = weight;
                const CLinuxFont font(record);
                const auto extent = nativeSmoothTextSize("Wfjgy Q0", font);
                const auto right = 20 + static_cast<std::int32_t>(extent->width);
                // The y of the bold italic face ends a little below the face's descent.
                const bool isTooLow = italic && weight == 700;
                const auto bottom =
                    20 + static_cast<std::int32_t>(extent->height) + (isTooLow ? 1 : 0);
                const std::string name = std::to_string(size) + (italic ? " italic" : "") +
                                         (weight == 700 ? " bold" : "");
                EXPECT_EQ(inkWithin(font, 0, {20, 20, right, bottom}),
                          inkWithin(font, 0, {20, 20, right + 20, bottom + 20}))
                    << name << ", left";
                EXPECT_EQ(inkWithin(font, 1, {20, 20, right, bottom}),
                          inkWithin(font, 1, {0, 20, right + 20, bottom + 20}))
                    << name << ", centre";
                EXPECT_EQ(inkWithin(font, 2, {20, 20, right, bottom}),
                          inkWithin(font, 2, {0, 20, right, bottom + 20}))
                    << name << ", right";
            }
}

// What one channel becomes, from 0 to 255
std::uint32_t blended(std::uint32_t over, std::uint32_t under, std::uint32_t alpha) {
    return (over * alpha + under * (255 - alpha) + 127) / 255;
}

TEST_F(DrawText, BlendsItsColourOverPremultipliedPixels) {
    const SNativeRect rect = {0, 0, 60, 20};
    CCanvas coverage(60, 20);
    drawSmoothText(coverage.getPixels(), "W a g & 0", rect, font, white, 0, 0);
    for (const std::uint32_t background : {0x00000000u, 0x80402010u, 0xff204060u, 0xffffffffu})
        for (const int alpha : {1, 100, 128, 255}) {
            CCanvas canvas(60, 20, background);
            const SNativeColour colour = {200, 100, 50, static_cast<std::uint8_t>(alpha)};
            drawSmoothText(canvas.getPixels(), "W a g & 0", rect, font, colour, 0, 0);
            for (std::int32_t y = 0; y < 20; ++y)
                for (std::int32_t x = 0; x < 60; ++x) {
                    const std::uint32_t weight = blended(colour.alpha, 0, coverage.at(x, y) & 0xff);
                    const std::uint32_t opaque = 0xffc86432;
                    std::uint32_t expected = 0;
                    for (int shift = 0; shift < 32; shift += 8)
                        expected |=
                            blended(opaque >> shift & 0xff, background >> shift & 0xff, weight)
                            << shift;
                    ASSERT_EQ(canvas.at(x, y), expected) << x << ", " << y << " alpha " << alpha;
                }
        }
}

TEST_F(DrawText, IgnoresTheAlphaOfPlainText) {
    CCanvas opaque(60, 20), transparent(60, 20);
    drawPlainText(opaque.getPixels(), "abc", {0, 0, 60, 20}, font, white, 0);
    drawPlainText(transparent.getPixels(), "abc", {0, 0, 60, 20}, font, {255, 255, 255, 0}, 0);
    EXPECT_EQ(transparent.getMemory(), opaque.getMemory());
}

TEST_F(DrawText, UnderlinesAndStrikesTheWholeLine) {
    SNativeFontRecord record = arial(-11);
    record.underline = 1;
    record.strikeOut = 1;
    const CLinuxFont lined(record);
    CCanvas canvas(60, 20);
    drawPlainText(canvas.getPixels(), "a   i", {10, 0, 60, 20}, lined, white, 0);
    const auto width = static_cast<std::int32_t>(nativeTextSize("a   i", &lined).width);
    const auto isLine = [&](std::int32_t y) {
        std::int32_t x = 10;
        while (x < 10 + width && canvas.at(x, y) == opaqueWhite)
            ++x;
        return x == 10 + width && canvas.at(9, y) == 0 && canvas.at(x, y) == 0;
    };
    const std::int32_t baseLine = lined.getAscent();
    for (std::int32_t y = 0; y < 20; ++y)
        EXPECT_EQ(isLine(y), y == baseLine + 1 || y == baseLine - 3) << y;
}

TEST_F(DrawText, UnderlinesTheSmallestText) {
    SNativeFontRecord record = arial(-5);
    record.underline = 1;
    const CLinuxFont lined(record);
    CCanvas canvas(60, 20);
    drawPlainText(canvas.getPixels(), "a", {0, 0, 60, 20}, lined, white, 0);
    EXPECT_EQ(canvas.at(0, lined.getAscent() + 1), opaqueWhite);
}

TEST_F(DrawText, BlendsTheUnderline) {
    SNativeFontRecord record = arial(-11);
    record.underline = 1;
    const CLinuxFont lined(record);
    CCanvas canvas(60, 20);
    drawSmoothText(canvas.getPixels(), "a   i", {0, 0, 60, 20}, lined, {255, 255, 255, 100}, 0, 0);
    EXPECT_EQ(canvas.at(12, lined.getAscent() + 1), 0x64646464u);
}

TEST_F(DrawText, DrawsNothingWithoutAnyFont) {
    const CFontConfiguration noFonts("");
    SNativeFontRecord record = arial(-11);
    record.underline = 1;
    const CLinuxFont faceless(record);
    CCanvas canvas(60, 20);
    drawSmoothText(canvas.getPixels(), "abc", {0, 0, 60, 20}, faceless, white, 0, 0);
    drawPlainText(canvas.getPixels(), "abc", {0, 0, 60, 20}, faceless, white, 0);
    EXPECT_EQ(canvas.countInk(), 0u);
}

TEST_F(DrawText, DrawsBytesThatAreNotUtf8AsReplacementCharacters) {
    CCanvas invalid(60, 20), replaced(60, 20);
    drawPlainText(invalid.getPixels(), "a\xe4z", {0, 0, 60, 20}, font, white, 0);
    drawPlainText(replaced.getPixels(), "a\xef\xbf\xbdz", {0, 0, 60, 20}, font, white, 0);
    EXPECT_EQ(invalid.getMemory(), replaced.getMemory());
    EXPECT_EQ(nativeTextSize("a\xe4z", &font).width, nativeTextSize("a\xef\xbf\xbdz", &font).width);
}

TEST(NativeSmoothTextSize, AddsASixthOfTheSizeAtBothEnds) {
    const CLinuxFont font(arial(-11));
    const auto size = nativeSmoothTextSize("WWWW", font);
    EXPECT_NEAR(size->width, 40 + 11 / 3.0, 0.01);
    EXPECT_EQ(size->height, 12.0f);
}

TEST(NativeSmoothTextSize, IsAsWideAsTheWidestLine) {
    const CLinuxFont font(arial(-11));
    EXPECT_EQ(nativeSmoothTextSize("i\nWWWW\ni", font)->width,
              nativeSmoothTextSize("WWWW", font)->width);
    EXPECT_EQ(nativeSmoothTextSize("i\nWWWW\ni", font)->height, 36.0f);
}

TEST(NativeSmoothTextSize, IsZeroForNoText) {
    const CLinuxFont font(arial(-11));
    EXPECT_EQ(nativeSmoothTextSize("", font)->width, 0.0f);
    EXPECT_EQ(nativeSmoothTextSize("", font)->height, 0.0f);
}

TEST(NativeTextSize, HasAFontOfItsOwn) {
    EXPECT_GT(nativeTextSize("WWWW", nullptr).width, 20.0f);
    EXPECT_GT(nativeTextSize("WWWW", nullptr).height, 10.0f);
}

TEST(NativeTextSize, IsZeroForNoText) {
    EXPECT_EQ(nativeTextSize("", nullptr).width, 0.0f);
    EXPECT_EQ(nativeTextSize("", nullptr).height, 0.0f);
}

}  // namespace
