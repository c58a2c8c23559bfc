#include "Ink.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr SNativeColour black{0, 0, 0}, white{255, 255, 255}, red{255, 0, 0}, blue{0, 0, 255};

TEST(NativeSurface, HasTheSizeAndBackgroundThatItIsCreatedWith) {
    const auto surface = createNativeSurface(nullptr, 5, 3, red);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->getWidth(), 5);
    EXPECT_EQ(surface->getHeight(), 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(surface->getPixel({x, y}), red) << x << ", " << y;
}

TEST(NativeSurface, HasAtLeastOnePixel) {
    EXPECT_EQ(createNativeSurface(nullptr, 0, 3, red), nullptr);
    EXPECT_EQ(createNativeSurface(nullptr, 3, 0, red), nullptr);
    EXPECT_EQ(createNativeSurface(nullptr, -1, 3, red), nullptr);
    EXPECT_EQ(createNativeSurface(nullptr, 3, -1, red), nullptr);
}

TEST(NativeSurface, IsCreatedForAnotherSurface) {
    const auto first = createNativeSurface(nullptr, 2, 2, white);
    const auto second = createNativeSurface(first.get(), 3, 3, red);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->getWidth(), 3);
    EXPECT_EQ(second->getPixel({2, 2}), red);
}

TEST(NativeSurface, StartsWithABlackPenAndAWhiteBrush) {
    const auto surface = createNativeSurface(nullptr, 6, 6, red);
    surface->drawRectangle({1, 1, 5, 5});
    EXPECT_EQ(surface->getPixel({1, 1}), black);
    EXPECT_EQ(surface->getPixel({2, 2}), white);
    surface->lineTo({3, 0});
    EXPECT_EQ(surface->getPixel({0, 0}), black);
}

TEST(NativeSurface, FillsARectangleWithExchangedEdges) {
    const auto surface = createNativeSurface(nullptr, 10, 10, red);
    surface->fillRectangle({7, 9, 2, 3});
    EXPECT_EQ(inkOf(*surface, red), (SNativeRect{2, 3, 7, 9}));
}

TEST(NativeSurface, CopiesAnAreaToTheSamePosition) {
    const auto source = createNativeSurface(nullptr, 10, 10, red);
    const auto target = createNativeSurface(nullptr, 10, 10, white);
    target->copyFrom(*source, {2, 3, 7, 9});
    EXPECT_EQ(inkOf(*target, white), (SNativeRect{2, 3, 7, 9}));
    EXPECT_EQ(target->getPixel({4, 5}), red);
}

TEST(NativeSurface, CopiesInsideItsClip) {
    const auto source = createNativeSurface(nullptr, 10, 10, red);
    const auto target = createNativeSurface(nullptr, 10, 10, white);
    target->setClip({4, 4, 20, 20});
    target->copyFrom(*source, {2, 3, 7, 9});
    target->setClip({0, 0, 10, 10});
    EXPECT_EQ(inkOf(*target, white), (SNativeRect{4, 4, 7, 9}));
}

TEST(NativeSurface, CopiesNothingForAnEmptyArea) {
    const auto source = createNativeSurface(nullptr, 10, 10, red);
    const auto target = createNativeSurface(nullptr, 10, 10, white);
    target->copyFrom(*source, {});
    EXPECT_EQ(inkOf(*target, white), SNativeRect{});
}

TEST(NativeSurface, DrawsNothingOutsideItsClip) {
    const CNativeSmoothSession session;
    const SNativeRect clip{3, 4, 9, 8}, all{-5, -5, 40, 40};
    const auto font = createNativeFont({.height = -30, .faceName = "Arial"});
    const auto source = createNativeSurface(nullptr, 20, 20, red);
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < 20 * 20; ++i)
        pixels.insert(pixels.end(), {90, 90, 90, 255});
    const auto bitmap = createNativeBitmap(20, 20, pixels);
    const std::vector<SNativePoint> corners = {{-5, -5}, {40, -5}, {-5, 40}};
    const std::vector<std::function<void(INativeSurface &)>> drawings = {
        [&](INativeSurface &surface) { surface.fillRectangle(all); },
        [&](INativeSurface &surface) { surface.drawRectangle(all); },
        [&](INativeSurface &surface) { surface.drawRoundedRectangle(all, 5, 5); },
        [&](INativeSurface &surface) { surface.drawEllipse(all); },
        [&](INativeSurface &surface) { surface.drawPolygon(corners); },
        [&](INativeSurface &surface) {
            surface.lineTo({20, 20});
        },
        [&](INativeSurface &surface) {
            surface.drawArc({2, 2, 8, 8}, {}, {}, true);
        },
        [&](INativeSurface &surface) {
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 20; ++x)
                    surface.setPixel({x, y}, red);
        },
        [&](INativeSurface &surface) {
            surface.blendFrom(*source, {0, 0, 20, 20}, {0, 0, 20, 20}, 128);
        },
        [&](INativeSurface &surface) {
            surface.copyBitmap(*bitmap, {0, 0, 20, 20}, {0, 0});
        },
        [&](INativeSurface &surface) {
            surface.stretchBitmap(*bitmap, {-5, -5, 40, 40}, {0, 0, 20, 20});
        },
        [&](INativeSurface &surface) {
            surface.blendBitmap(*bitmap, {0, 0, 20, 20}, {0, 0, 20, 20}, 255);
        },
        [&](INativeSurface &surface) { surface.drawText("WWW\nWWW", all, *font, red, 0); },
        [&](INativeSurface &surface) {
            surface.startSmoothDrawing()->fillRectangle({255, 0, 0, 128}, all);
        },
        [&](INativeSurface &surface) {
            surface.startSmoothDrawing()->drawLine({red, 3}, {0, 0}, {20, 20});
        },
        [&](INativeSurface &surface) { surface.startSmoothDrawing()->fillEllipse(red, all); },
        [&](INativeSurface &surface) {
            surface.startSmoothDrawing()->drawText("WWW\nWWW", all, *font, red, 0, 0);
        },
    };
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        const auto surface = createNativeSurface(nullptr, 20, 20, white);
        surface->setPen(blue, 3);
        surface->setBrush(red);
        surface->setClip(clip);
        drawings[i](*surface);
        surface->setClip({0, 0, 20, 20});
        EXPECT_TRUE(isInside(inkOf(*surface, white), clip)) << i << ": " << inkOf(*surface, white);
        EXPECT_FALSE(isEmpty(inkOf(*surface, white))) << i;
    }
}

TEST(NativeSurface, APixelOutsideThePictureOrItsClipIsWhite) {
    const auto surface = createNativeSurface(nullptr, 10, 10, red);
    for (const SNativePoint point : {SNativePoint{-1, 5}, {5, -1}, {10, 5}, {5, 10}}) {
        EXPECT_EQ(surface->getPixel(point), white);
        surface->setPixel(point, blue);
    }
    EXPECT_EQ(inkOf(*surface, red), SNativeRect{});
    surface->setClip({2, 2, 6, 6});
    EXPECT_EQ(surface->getPixel({8, 8}), white);
    EXPECT_EQ(surface->getPixel({6, 5}), white);
    EXPECT_EQ(surface->getPixel({5, 5}), red);
}

TEST(NativeSurface, AnEmptyClipDrawsNothing) {
    const CNativeSmoothSession session;
    const auto surface = createNativeSurface(nullptr, 10, 10, red);
    surface->setClip({4, 4, 4, 4});
    surface->fillRectangle({0, 0, 10, 10});
    surface->startSmoothDrawing()->fillRectangle(blue, {0, 0, 10, 10});
    surface->setClip({0, 0, 10, 10});
    EXPECT_EQ(inkOf(*surface, red), SNativeRect{});
}

}  // namespace
