#include "Ink.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

// Text, plain and smooth. Systems draw their own glyphs, so edges have a tolerance.

namespace {

constexpr SNativeColour white{255, 255, 255}, black{0, 0, 0};
constexpr SNativeRect area{40, 20, 240, 100};

struct SFont {
    const char *face;
    int size;
    bool isBold;
};

std::ostream &operator<<(std::ostream &stream, const SFont &font) {
    return stream << font.face << ' ' << font.size << (font.isBold ? " bold" : "");
}

std::unique_ptr<INativeFont> create(const SFont &font) {
    SNativeFontRecord record;
    record.height = -font.size;
    record.weight = font.isBold ? 700 : 400;
    record.outputPrecision = 4;
    record.quality = 5;
    std::copy_n(font.face, std::string(font.face).size(), record.faceName);
    return createNativeFont(record);
}

class NativeText : public testing::TestWithParam<SFont> {
protected:
    SNativeRect smoothInk(const char *text, const SNativeRect &rect, int horizontal,
                          int vertical) const {
        const auto surface = createNativeSurface(nullptr, 280, 120, white);
        surface->startSmoothDrawing()->drawText(text, rect, *font, black, horizontal, vertical);
        return inkOf(*surface, white);
    }
    SNativeRect plainInk(const char *text, const SNativeRect &rect, unsigned format) const {
        const auto surface = createNativeSurface(nullptr, 280, 120, white);
        surface->drawText(text, rect, *font, black, format);
        return inkOf(*surface, white);
    }

    CNativeSmoothSession session;
    std::unique_ptr<INativeFont> font = create(GetParam());
    const float size = static_cast<float>(GetParam().size);
};

/// @param horizontal  0 left, 1 centre, 2 right.
/// @param vertical    0 top, 1 centre, 2 bottom.
/// @param extent      of the text, margins included.
void expectAligned(const SNativeRect &ink, int horizontal, int vertical, SNativeTextSize extent,
                   float margin, float size) {
    const float roomX = 200 - extent.width, roomY = 80 - extent.height;
    const float left = 40 + roomX * static_cast<float>(horizontal) / 2;
    const float top = 20 + roomY * static_cast<float>(vertical) / 2;
    // "HxH" has a small bearing on both sides, room above its letters and descenders below them.
    const float bearing = 0.08f * size, tolerance = 2.2f + 0.1f * size;
    EXPECT_NEAR(static_cast<float>(ink.left), left + margin + bearing, tolerance);
    EXPECT_NEAR(static_cast<float>(ink.right), left + extent.width - margin - bearing, tolerance);
    EXPECT_NEAR(static_cast<float>(ink.top), top + 0.2f * size, tolerance);
    EXPECT_NEAR(static_cast<float>(ink.bottom), top + 0.9f * size, tolerance);
}

TEST_P(NativeText, SmoothTextIsAligned) {
    const auto extent = nativeSmoothTextSize("HxH", *font);
    ASSERT_TRUE(extent.has_value());
    for (int horizontal = 0; horizontal < 3; ++horizontal) {
        for (int vertical = 0; vertical < 3; ++vertical) {
            SCOPED_TRACE(testing::Message() << horizontal << ", " << vertical);
            const SNativeRect ink = smoothInk("HxH", area, horizontal, vertical);
            expectAligned(ink, horizontal, vertical, *extent, size / 6, size);
            EXPECT_TRUE(isInside(ink, area)) << ink;
        }
    }
}

TEST_P(NativeText, PlainTextIsAligned) {
    const SNativeTextSize extent = nativeTextSize("HxH", font.get());
    for (const unsigned format : {0u, 1u, 2u, 36u, 37u, 38u, 40u, 41u, 42u}) {
        SCOPED_TRACE(format);
        const int horizontal = static_cast<int>(format & 3);
        const int vertical = static_cast<int>(format >> 2 & 3);
        const SNativeRect ink = plainInk("HxH", area, format);
        expectAligned(ink, horizontal, vertical, extent, 0, size);
        EXPECT_TRUE(isInside(ink, area)) << ink;
    }
}

TEST_P(NativeText, SmoothTextHasAMarginOnBothSides) {
    const auto one = nativeSmoothTextSize("WW", *font), two = nativeSmoothTextSize("WWWW", *font);
    ASSERT_TRUE(one.has_value() && two.has_value());
    EXPECT_NEAR(2 * one->width - two->width, size / 3, 1);
}

TEST_P(NativeText, EmptyTextHasNoSizeAndNoInk) {
    const auto smooth = nativeSmoothTextSize("", *font);
    ASSERT_TRUE(smooth.has_value());
    EXPECT_EQ(smooth->width, 0);
    EXPECT_EQ(smooth->height, 0);
    EXPECT_EQ(nativeTextSize("", font.get()).width, 0);
    EXPECT_EQ(smoothInk("", area, 0, 0), SNativeRect{});
    EXPECT_EQ(plainInk("", area, 0), SNativeRect{});
}

TEST_P(NativeText, ALineFeedStartsALine) {
    const auto one = nativeSmoothTextSize("HxH", *font);
    const auto two = nativeSmoothTextSize("HxH\nH", *font);
    ASSERT_TRUE(one.has_value() && two.has_value());
    EXPECT_EQ(two->width, one->width);
    EXPECT_EQ(two->height, 2 * one->height);
    const SNativeRect upper = smoothInk("HxH", area, 0, 0), both = smoothInk("HxH\nH", area, 0, 0);
    EXPECT_EQ(both.top, upper.top);
    EXPECT_NEAR(static_cast<float>(both.bottom - upper.bottom), one->height, 1);
    const SNativeRect plainUpper = plainInk("HxH", area, 0),
                      plainBoth = plainInk("HxH\nH", area, 0);
    EXPECT_EQ(plainBoth.top, plainUpper.top);
    EXPECT_NEAR(static_cast<float>(plainBoth.bottom - plainUpper.bottom),
                nativeTextSize("H", font.get()).height, 1);
}

TEST_P(NativeText, EachLineIsAlignedByItself) {
    const SNativeRect ink = smoothInk("HHHH\nH", area, 2, 0);
    const auto surface = createNativeSurface(nullptr, 280, 120, white);
    surface->startSmoothDrawing()->drawText("HHHH\nH", area, *font, black, 2, 0);
    surface->setBrush(white);
    surface->fillRectangle({0, 0, 280, (ink.top + ink.bottom) / 2});
    const SNativeRect second = inkOf(*surface, white);
    EXPECT_NEAR(second.right, ink.right, 1);
    EXPECT_GT(second.left, ink.left + GetParam().size);
}

TEST_P(NativeText, ASingleLineKeepsItsLineFeeds) {
    EXPECT_NEAR(plainInk("HxH\nH", area, 36).bottom, plainInk("HxH", area, 36).bottom, 1);
}

TEST_P(NativeText, NeverLeavesItsRectangle) {
    const char *text = "Waltz, bad nymph, for quick jigs vex";
    for (const SNativeRect rect :
         {SNativeRect{100, 50, 130, 58}, {100, 50, 105, 90}, {90, 50, 190, 53}}) {
        for (int horizontal = 0; horizontal < 3; ++horizontal) {
            for (int vertical = 0; vertical < 3; ++vertical) {
                for (const char *shown : {text, "Q", "Qq\nQq\nQq\nQq\nQq\nQq\nQq"}) {
                    const SNativeRect ink = smoothInk(shown, rect, horizontal, vertical);
                    EXPECT_TRUE(isEmpty(ink) || isInside(ink, rect)) << shown << ": " << ink;
                }
                const unsigned format = static_cast<unsigned>(
                    vertical == 0 ? horizontal : horizontal + 32 + 4 * vertical);
                const SNativeRect ink = plainInk(text, rect, format);
                EXPECT_TRUE(isEmpty(ink) || isInside(ink, rect)) << ink;
            }
        }
    }
}

TEST_P(NativeText, ARectangleWithoutAnAreaShowsNothing) {
    for (const SNativeRect rect :
         {SNativeRect{50, 50, 50, 90}, {50, 50, 90, 50}, {90, 20, 50, 90}}) {
        EXPECT_EQ(smoothInk("Text", rect, 0, 0), SNativeRect{});
        EXPECT_EQ(plainInk("Text", rect, 0), SNativeRect{});
    }
}

TEST_P(NativeText, IsMeasuredAsItIsDrawn) {
    for (const char *text : {"HxH", "H", "HHHHHHHHHH", "H and H"}) {
        const auto extent = nativeSmoothTextSize(text, *font);
        ASSERT_TRUE(extent.has_value());
        const SNativeRect ink = smoothInk(text, {0, 0, 280, 120}, 0, 0);
        // The bearings of the outer letters. Wine 8 measures for the screen, and its small letters
        // may be a pixel wider there.
        const float tolerance =
            1.5f + 0.16f * size + (size < 16 ? static_cast<float>(std::strlen(text)) : 0.0f);
        EXPECT_NEAR(static_cast<float>(ink.right - ink.left), extent->width - size / 3, tolerance);
        EXPECT_LE(static_cast<float>(ink.bottom), extent->height);
        const SNativeTextSize plain = nativeTextSize(text, font.get());
        const SNativeRect plainRect = plainInk(text, {0, 0, 280, 120}, 0);
        EXPECT_NEAR(static_cast<float>(plainRect.right - plainRect.left), plain.width, tolerance);
        EXPECT_LE(static_cast<float>(plainRect.bottom), plain.height);
        EXPECT_GE(plain.height, size);
        EXPECT_LE(plain.height, 1.4f * size);
        EXPECT_GE(extent->height, size);
        EXPECT_LE(extent->height, 1.4f * size);
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, NativeText,
                         testing::Values(SFont{"Arial", 10, false}, SFont{"Arial", 11, false},
                                         SFont{"Arial", 11, true}, SFont{"Arial", 20, false},
                                         SFont{"Arial", 20, true}, SFont{"Arial", 32, false},
                                         SFont{"no such face", 14, false}));

TEST(NativeTextColour, SmoothTextHasShades) {
    const CNativeSmoothSession session;
    const auto font = create({"Arial", 20, false});  // Wine 8 draws some smaller sizes without
    const auto surface = createNativeSurface(nullptr, 100, 100, white);
    surface->startSmoothDrawing()->drawText("SOS", {0, 0, 100, 100}, *font, black, 0, 0);
    int shades = 0;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const SNativeColour pixel = surface->getPixel({x, y});
            shades += pixel == white || pixel == black ? 0 : 1;
        }
    }
    EXPECT_GT(shades, 10);
}

TEST(NativeTextColour, SmoothTextIsBlended) {
    const CNativeSmoothSession session;
    const auto font = create({"Arial", 60, true});
    const auto surface = createNativeSurface(nullptr, 100, 100, white);
    surface->startSmoothDrawing()->drawText("I", {0, 0, 100, 100}, *font, {200, 0, 100, 128}, 1, 1);
    EXPECT_NEAR(surface->getPixel({50, 50}).red, 227, 2);
    EXPECT_NEAR(surface->getPixel({50, 50}).green, 127, 2);
    EXPECT_NEAR(surface->getPixel({50, 50}).blue, 177, 2);
}

TEST(NativeTextColour, PlainTextHasItsColour) {
    const auto font = create({"Arial", 60, true});
    const auto surface = createNativeSurface(nullptr, 100, 100, white);
    surface->drawText("I", {0, 0, 100, 100}, *font, {200, 0, 100}, 37);
    EXPECT_EQ(surface->getPixel({50, 50}), (SNativeColour{200, 0, 100}));
    EXPECT_EQ(surface->getPixel({90, 50}), white);
}

TEST(NativeTextColour, TextLeavesTheSmoothingOfShapesAlone) {
    const CNativeSmoothSession session;
    const auto font = create({"Arial", 11, false});
    const auto surface = createNativeSurface(nullptr, 40, 40, white);
    const auto drawing = surface->startSmoothDrawing();
    drawing->drawText(" ", {0, 0, 40, 40}, *font, black, 0, 0);
    drawing->fillEllipse(black, {5, 5, 35, 35});
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            const SNativeColour pixel = surface->getPixel({x, y});
            EXPECT_TRUE(pixel == white || pixel == black) << pixel;
        }
    }
}

TEST(NativeTextClip, SmoothTextIsDrawnInsideTheClips) {
    const CNativeSmoothSession session;
    const auto font = create({"Arial", 60, true});
    const auto surface = createNativeSurface(nullptr, 100, 100, white);
    const auto drawing = surface->startSmoothDrawing();
    drawing->setClip({30, 30, 70, 70});
    surface->setClip({40, 0, 100, 100});
    drawing->drawText("WWWW\nWWWW", {-50, -50, 200, 200}, *font, black, 1, 1);
    surface->setClip({0, 0, 100, 100});
    EXPECT_TRUE(isInside(inkOf(*surface, white), {40, 30, 70, 70})) << inkOf(*surface, white);
    EXPECT_FALSE(isEmpty(inkOf(*surface, white)));
}

TEST(NativeFont, BoldIsWiderThanRegular) {
    EXPECT_GT(nativeTextSize("oooooooooo", create({"Arial", 20, true}).get()).width,
              nativeTextSize("oooooooooo", create({"Arial", 20, false}).get()).width);
}

TEST(NativeFont, TheSystemHasAFontOfItsOwn) {
    EXPECT_GT(nativeTextSize("text", nullptr).width, 8);
}

}  // namespace
