#include "Picture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

namespace {

/// A bitmap of one row with premultiplied pixels.
std::unique_ptr<INativeBitmap> rowOf(const std::vector<SNativeColour> &pixels) {
    std::vector<std::uint8_t> bytes;
    for (const SNativeColour &pixel : pixels)
        bytes.insert(bytes.end(), {pixel.blue, pixel.green, pixel.red, pixel.alpha});
    return createNativeBitmap(static_cast<std::int32_t>(pixels.size()), 1, bytes);
}

/// A row of distinct greys: pixel i is 16 * i.
std::unique_ptr<INativeBitmap> greys(int count) {
    std::vector<SNativeColour> pixels;
    for (int i = 0; i < count; ++i) {
        const auto grey = static_cast<std::uint8_t>(16 * i);
        pixels.push_back({grey, grey, grey, 255});
    }
    return rowOf(pixels);
}

/// The indexes of the greys in the first row, -1 for the background.
std::vector<int> indexes(const INativeSurface &surface) {
    std::vector<int> found;
    for (std::int32_t x = 0; x < surface.getWidth(); ++x) {
        const SNativeColour pixel = surface.getPixel({x, 0});
        found.push_back(pixel == white ? -1 : pixel.red / 16);
    }
    return found;
}

std::uint8_t divided(int product) {
    return static_cast<std::uint8_t>((product + 127) / 255);
}

TEST(NativeSurfaceBlend, RoundsEveryPairOfAlphaAndColour) {
    for (const std::uint8_t level : std::initializer_list<std::uint8_t>{0, 1, 100, 255}) {
        const auto surface = createNativeSurface(nullptr, 256, 1, {level, level, level, 255});
        for (const std::uint8_t constant : std::initializer_list<std::uint8_t>{255, 128, 1}) {
            for (int alpha = 0; alpha < 256; ++alpha) {
                std::vector<SNativeColour> pixels;
                for (int x = 0; x < 256; ++x) {
                    const auto channel = static_cast<std::uint8_t>(std::min(x, alpha));
                    pixels.push_back({channel, 0, 0, static_cast<std::uint8_t>(alpha)});
                }
                surface->setBrush({level, level, level, 255});
                surface->fillRectangle({0, 0, 256, 1});
                surface->blendBitmap(*rowOf(pixels), {0, 0, 256, 1}, {0, 0, 256, 1}, constant);
                const int scaledAlpha = divided(alpha * constant);
                for (std::int32_t x = 0; x < 256; ++x) {
                    const int scaled = divided(std::min(x, alpha) * constant);
                    ASSERT_EQ(surface->getPixel({x, 0}).red,
                              scaled + divided(level * (255 - scaledAlpha)))
                        << x << " with alpha " << alpha << " times " << +constant;
                }
            }
        }
    }
}

TEST(NativeSurfaceBlend, MixesWithAConstantAlpha) {
    const auto source = createNativeSurface(nullptr, 2, 1, {200, 7, 255, 255});
    for (int alpha = 0; alpha < 256; ++alpha) {
        const auto surface = createNativeSurface(nullptr, 2, 1, {10, 250, 0, 255});
        surface->blendFrom(*source, {0, 0, 1, 1}, {1, 0, 2, 1}, static_cast<std::uint8_t>(alpha));
        const auto mixed = [alpha](int over, int under) {
            return divided(over * alpha + under * (255 - alpha));
        };
        EXPECT_EQ(surface->getPixel({0, 0}), (SNativeColour{10, 250, 0, 255}));
        EXPECT_EQ(surface->getPixel({1, 0}),
                  (SNativeColour{mixed(200, 10), mixed(7, 250), mixed(255, 0), 255}));
    }
}

TEST(NativeSurfaceBlend, NeedsASourceInsideThePicture) {
    const auto source = createNativeSurface(nullptr, 2, 2, black);
    const auto surface = createNativeSurface(nullptr, 3, 3, white);
    surface->blendFrom(*source, {1, 0, 3, 2}, {0, 0, 2, 2}, 255);
    surface->blendFrom(*source, {-1, 0, 1, 2}, {0, 0, 2, 2}, 255);
    surface->blendFrom(*source, {0, 1, 2, 3}, {0, 0, 2, 2}, 255);
    surface->blendFrom(*source, {0, -1, 2, 1}, {0, 0, 2, 2}, 255);
    surface->blendFrom(*source, {2, 0, 0, 2}, {0, 0, 2, 2}, 255);
    surface->blendFrom(*source, {0, 0, 2, 2}, {2, 0, 0, 2}, 255);
    EXPECT_EQ(pictureOf(*surface), "...\n...\n...\n");
}

TEST(NativeSurfaceBlend, ScalesByRepeatingOrLeavingOutPixels) {
    const auto surface = createNativeSurface(nullptr, 10, 1, white);
    surface->blendBitmap(*greys(8), {1, 0, 9, 1}, {2, 0, 5, 1}, 255);
    EXPECT_EQ(indexes(*surface), (std::vector{-1, 2, 2, 2, 3, 3, 4, 4, 4, -1}));
    surface->blendBitmap(*greys(8), {1, 0, 4, 1}, {0, 0, 8, 1}, 255);
    EXPECT_EQ(indexes(*surface), (std::vector{-1, 2, 4, 7, 3, 3, 4, 4, 4, -1}));
}

TEST(NativeSurfaceBlend, CopiesOnlyWhatLiesInsideTheBitmap) {
    const auto surface = createNativeSurface(nullptr, 8, 1, white);
    surface->copyBitmap(*greys(4), {0, 0, 8, 1}, {-2, 0});
    EXPECT_EQ(indexes(*surface), (std::vector{-1, -1, 0, 1, 2, 3, -1, -1}));
    surface->copyBitmap(*greys(4), {6, 0, 8, 1}, {1, 0});
    EXPECT_EQ(indexes(*surface), (std::vector{-1, -1, 0, 1, 2, 3, 1, 2}));
}

TEST(NativeSurfaceBlend, StretchingRepeatsThePixelAtTheCentre) {
    const auto surface = createNativeSurface(nullptr, 9, 1, white);
    surface->stretchBitmap(*greys(4), {1, 0, 8, 1}, {1, 0, 3, 1});
    EXPECT_EQ(indexes(*surface), (std::vector{-1, 1, 1, 1, 1, 2, 2, 2, -1}));
}

TEST(NativeSurfaceBlend, ShrinkingCombinesPixelsByAnd) {
    const auto surface = createNativeSurface(nullptr, 2, 1, white);
    surface->stretchBitmap(*rowOf({{0xf0, 0xff, 0x0f, 255},
                                   {0x3c, 0xff, 0xf0, 255},
                                   {0xff, 0x81, 0xff, 255},
                                   {0xff, 0x18, 0xff, 255}}),
                           {0, 0, 2, 1}, {0, 0, 4, 1});
    EXPECT_EQ(surface->getPixel({0, 0}), (SNativeColour{0x30, 0xff, 0x00, 255}));
    EXPECT_EQ(surface->getPixel({1, 0}), (SNativeColour{0xff, 0x00, 0xff, 255}));
}

TEST(NativeSurfaceBlend, NegativeSizesMirror) {
    const auto surface = createNativeSurface(nullptr, 9, 1, white);
    surface->stretchBitmap(*greys(4), {8, 0, 1, 1}, {0, 0, 3, 1});
    EXPECT_EQ(indexes(*surface), (std::vector{-1, -1, 2, 2, 1, 1, 1, 0, 0}));
    surface->stretchBitmap(*greys(4), {1, 0, 8, 1}, {3, 0, 0, 1});
    EXPECT_EQ(indexes(*surface), (std::vector{-1, 3, 3, 2, 2, 2, 1, 1, 0}));
}

}  // namespace
