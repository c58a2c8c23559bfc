#include "SPicture.h"
#include "Scenes.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <ostream>

using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::MathTools::CDimension;

void PrintTo(const SScene &scene, std::ostream *stream) {
    *stream << scene.name;
}

namespace {

/// The largest difference of a channel
int difference(SNativeColour a, SNativeColour b) {
    return std::max(
        {std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

SPicture draw(const SScene &scene) {
    const auto surface = createNativeSurface(nullptr, sceneWidth, sceneHeight, {});
    CGraphics graphics(scene.usesSmoothDrawing);
    graphics.getNativeImage().setBackgroundColour(
        {sceneBackground.red, sceneBackground.green, sceneBackground.blue});
    graphics.initialise(surface.get(), CDimension(sceneWidth, sceneHeight));
    scene.draw(graphics);
    surface->copyFrom(*graphics.getNativeImage().getSurface(), {0, 0, sceneWidth, sceneHeight});
    graphics.uninitialise();
    return pictureOf(*surface);
}

/// True if a neighbour has another colour: there, two systems may smooth differently.
bool isBesideEdge(const SPicture &picture, int x, int y) {
    for (int otherY = std::max(y - 1, 0); otherY <= std::min(y + 1, picture.height - 1); ++otherY)
        for (int otherX = std::max(x - 1, 0); otherX <= std::min(x + 1, picture.width - 1);
             ++otherX)
            if (picture.at(otherX, otherY) != picture.at(x, y))
                return true;
    return false;
}

/// @return how many pixels differ by more than a channel value, leaving out those beside an edge if
///         asked.
int differingPixels(const SPicture &actual, const SPicture &expected, int tolerance,
                    bool leavesOutEdges) {
    int count = 0;
    for (int y = 0; y < expected.height; ++y)
        for (int x = 0; x < expected.width; ++x)
            if (difference(actual.at(x, y), expected.at(x, y)) > tolerance &&
                !(leavesOutEdges && isBesideEdge(expected, x, y)))
                ++count;
    return count;
}

/// The rectangle around everything that is not background; right and bottom are inside.
struct SInk {
    int left = sceneWidth, top = sceneHeight, right = -1, bottom = -1, pixels = 0;
};

SInk inkIn(const SPicture &picture, const SNativeRect &part) {
    constexpr int faint = 48;  // the outermost shade of a glyph differs from system to system
    SInk ink;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            if (difference(picture.at(x, y), sceneBackground) > faint) {
                ink.left = std::min(ink.left, x);
                ink.top = std::min(ink.top, y);
                ink.right = std::max(ink.right, x);
                ink.bottom = std::max(ink.bottom, y);
                ++ink.pixels;
            }
    return ink;
}

void expectSameInk(const SPicture &actual, const SPicture &expected, const SNativeRect &part) {
    const SInk got = inkIn(actual, part), wanted = inkIn(expected, part);
    EXPECT_NEAR(got.left, wanted.left, 2);
    EXPECT_NEAR(got.top, wanted.top, 2);
    EXPECT_NEAR(got.right, wanted.right, 2);
    EXPECT_NEAR(got.bottom, wanted.bottom, 2);
    EXPECT_GE(2 * got.pixels, wanted.pixels);
    EXPECT_LE(got.pixels, 2 * wanted.pixels);
}

void expectMatch(const SScene &scene, const SPicture &actual, const SPicture &expected) {
    constexpr int sixteenth = 16;
    switch (scene.match) {
    case EMatch::Exact:
        EXPECT_EQ(differingPixels(actual, expected, 0, false), 0);
        break;
    case EMatch::Outline:
        EXPECT_LE(differingPixels(actual, expected, 0, false), 20);
        break;
    case EMatch::Smooth:
        EXPECT_EQ(differingPixels(actual, expected, sixteenth, true), 0);
        break;
    case EMatch::Text:
        expectSameInk(actual, expected, {0, 0, sceneWidth, sceneHeight});
        break;
    case EMatch::TextGrid:
        for (int part = 0; part < 9; ++part) {
            SCOPED_TRACE("part " + std::to_string(part));
            const int left = part % 3 * 32, top = part / 3 * 21;
            expectSameInk(actual, expected, {left, top, left + 32, top + 21});
        }
        break;
    }
}

SPicture differenceOf(const SPicture &actual, const SPicture &expected) {
    SPicture result(expected.width, expected.height);
    const auto distance = [](int a, int b) { return static_cast<std::uint8_t>(std::abs(a - b)); };
    for (std::size_t i = 0; i < result.pixels.size(); ++i) {
        const SNativeColour a = actual.pixels[i], b = expected.pixels[i];
        result.pixels[i] = {distance(a.red, b.red), distance(a.green, b.green),
                            distance(a.blue, b.blue)};
    }
    return result;
}

class Pictures : public testing::TestWithParam<SScene> {};

// A failing test leaves NAME.actual.png and NAME.difference.png beside the expected picture.
// scripts/pictures.sh makes the actual pictures the expected ones.
TEST_P(Pictures, AreAsExpected) {
    const SScene &scene = GetParam();
    const std::string base = std::string(PICTURES) + "/" + scene.name;
    const SPicture actual = draw(scene);
    const auto expected = readPicture(base + ".png");
    if (!expected) {
        ADD_FAILURE() << "there is no " << base << ".png";
        EXPECT_TRUE(writePicture(base + ".actual.png", actual));
        return;
    }
    ASSERT_EQ(expected->width, sceneWidth);
    ASSERT_EQ(expected->height, sceneHeight);
    expectMatch(scene, actual, *expected);
    if (HasFailure()) {
        EXPECT_TRUE(writePicture(base + ".actual.png", actual));
        EXPECT_TRUE(writePicture(base + ".difference.png", differenceOf(actual, *expected)));
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, Pictures, testing::ValuesIn(scenes().begin(), scenes().end()),
                         [](const auto &scene) {
                             std::string name = scene.param.name;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
