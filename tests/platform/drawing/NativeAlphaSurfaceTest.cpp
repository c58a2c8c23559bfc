#include "Ink.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr SNativeColour black{0, 0, 0}, white{255, 255, 255}, red{255, 0, 0};

/// Blends a picture of 10 by 10 pixels over a background, and so shows its alpha.
std::unique_ptr<INativeSurface> over(SNativeColour background, INativeAlphaSurface &surface) {
    const auto bitmap = surface.makeBitmap();
    auto shown = createNativeSurface(nullptr, 10, 10, background);
    shown->blendBitmap(*bitmap, {0, 0, 10, 10}, {0, 0, 10, 10}, 255);
    return shown;
}

bool isAbout(SNativeColour a, SNativeColour b) {
    return std::abs(a.red - b.red) <= 1 && std::abs(a.green - b.green) <= 1 &&
           std::abs(a.blue - b.blue) <= 1;
}

class NativeAlphaSurface : public testing::Test {
protected:
    void TearDown() override { surface.reset(); }

    CNativeSmoothSession session;
    std::unique_ptr<INativeAlphaSurface> surface = createNativeAlphaSurface(10, 10);
};

TEST_F(NativeAlphaSurface, HasAtLeastOnePixel) {
    EXPECT_EQ(createNativeAlphaSurface(0, 3), nullptr);
    EXPECT_EQ(createNativeAlphaSurface(3, 0), nullptr);
    EXPECT_EQ(createNativeAlphaSurface(-1, 3), nullptr);
}

TEST_F(NativeAlphaSurface, MakesBitmapsOfItsSize) {
    const auto wide = createNativeAlphaSurface(7, 3);
    const auto bitmap = wide->makeBitmap();
    EXPECT_EQ(bitmap->getWidth(), 7);
    EXPECT_EQ(bitmap->getHeight(), 3);
}

TEST_F(NativeAlphaSurface, IsTransparentAtFirst) {
    EXPECT_EQ(inkOf(*over(red, *surface), red), SNativeRect{});
}

TEST_F(NativeAlphaSurface, PlainOperationsLeaveOpaquePixels) {
    surface->setPixel({0, 0}, black);
    surface->setBrush(red);
    surface->fillRectangle({2, 3, 7, 9});
    surface->moveTo({0, 1});
    surface->lineTo({4, 1});
    const auto shown = over(white, *surface);
    EXPECT_EQ(shown->getPixel({0, 0}), black);
    EXPECT_EQ(shown->getPixel({2, 3}), red);
    EXPECT_EQ(shown->getPixel({6, 8}), red);
    EXPECT_EQ(shown->getPixel({3, 1}), black);
    EXPECT_EQ(shown->getPixel({4, 1}), white);
    EXPECT_EQ(shown->getPixel({1, 0}), white);
}

TEST_F(NativeAlphaSurface, KeepsTheAlphaOfSmoothShapes) {
    surface->startSmoothDrawing()->fillRectangle({255, 0, 0, 128}, {2, 3, 7, 9});
    const auto onWhite = over(white, *surface), onBlack = over(black, *surface);
    EXPECT_TRUE(isAbout(onWhite->getPixel({4, 5}), {255, 127, 127})) << onWhite->getPixel({4, 5});
    EXPECT_TRUE(isAbout(onBlack->getPixel({4, 5}), {128, 0, 0})) << onBlack->getPixel({4, 5});
    EXPECT_EQ(inkOf(*onWhite, white), (SNativeRect{2, 3, 7, 9}));
}

TEST_F(NativeAlphaSurface, SmoothAndPlainOperationsMayAlternate) {
    const auto smooth = surface->startSmoothDrawing();
    smooth->fillRectangle({255, 0, 0, 128}, {0, 0, 10, 10});
    surface->setBrush(black);
    surface->fillRectangle({0, 0, 5, 5});
    smooth->fillRectangle({255, 255, 255, 128}, {0, 0, 1, 10});
    surface->setPixel({9, 9}, red);
    const auto shown = over(white, *surface);
    EXPECT_TRUE(isAbout(shown->getPixel({0, 0}), {128, 128, 128})) << shown->getPixel({0, 0});
    EXPECT_EQ(shown->getPixel({1, 1}), black);
    EXPECT_TRUE(isAbout(shown->getPixel({6, 6}), {255, 127, 127})) << shown->getPixel({6, 6});
    EXPECT_EQ(shown->getPixel({9, 9}), red);
}

TEST_F(NativeAlphaSurface, BlendsABitmapWithItsAlpha) {
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < 4 * 4; ++i)
        pixels.insert(pixels.end(), {0, 0, 128, 128});
    const auto bitmap = createNativeBitmap(4, 4, pixels);
    surface->setPixel({2, 3}, black);
    surface->blendBitmap(*bitmap, {1, 1, 5, 5}, {0, 0, 4, 4}, 255);
    const auto shown = over(white, *surface);
    EXPECT_TRUE(isAbout(shown->getPixel({2, 2}), {255, 127, 127})) << shown->getPixel({2, 2});
    EXPECT_TRUE(isAbout(shown->getPixel({2, 3}), {128, 0, 0})) << shown->getPixel({2, 3});
    EXPECT_EQ(inkOf(*shown, white), (SNativeRect{1, 1, 5, 5}));
}

TEST_F(NativeAlphaSurface, AnOpaqueSurfaceIsCopiedOpaque) {
    const auto source = createNativeSurface(nullptr, 10, 10, black);
    surface->copyFrom(*source, {2, 2, 6, 6});
    EXPECT_EQ(inkOf(*over(white, *surface), white), (SNativeRect{2, 2, 6, 6}));
    EXPECT_EQ(over(white, *surface)->getPixel({3, 3}), black);
}

TEST_F(NativeAlphaSurface, DrawsSmoothShapesInsideItsClip) {
    const auto smooth = surface->startSmoothDrawing();
    surface->setClip({2, 2, 8, 8});
    smooth->setClip({4, 0, 10, 10});
    smooth->fillRectangle(red, {0, 0, 10, 10});
    EXPECT_EQ(inkOf(*over(white, *surface), white), (SNativeRect{4, 2, 8, 8}));
    smooth->resetClip();
    smooth->fillRectangle(red, {0, 0, 10, 10});
    EXPECT_EQ(inkOf(*over(white, *surface), white), (SNativeRect{2, 2, 8, 8}));
}

TEST_F(NativeAlphaSurface, ABitmapDoesNotChangeWithItsSurface) {
    const auto bitmap = surface->makeBitmap();
    surface->setBrush(black);
    surface->fillRectangle({0, 0, 10, 10});
    const auto shown = createNativeSurface(nullptr, 10, 10, white);
    shown->blendBitmap(*bitmap, {0, 0, 10, 10}, {0, 0, 10, 10}, 255);
    EXPECT_EQ(inkOf(*shown, white), SNativeRect{});
}

}  // namespace
