#include "toolkit/graphics/AntiAliasedLine.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

using Tessitor::GUI::Graphics::drawAntiAliasedLine;

constexpr SNativeColour white{255, 255, 255}, black{0, 0, 0};

std::unique_ptr<INativeSurface> drawOn(SNativeColour background, SNativePoint from, SNativePoint to,
                                       SNativeColour colour) {
    auto surface = createNativeSurface(nullptr, 20, 20, background);
    drawAntiAliasedLine(*surface, from, to, colour);
    return surface;
}

int greyAt(const INativeSurface &surface, int x, int y) {
    return surface.getPixel({x, y}).red;
}

TEST(AntiAliasedLine, IncludesBothEnds) {
    for (const SNativePoint to : {SNativePoint{15, 5}, {15, 7}, {7, 15}, {5, 15}, {15, 15}}) {
        const auto surface = drawOn(white, {5, 5}, to, black);
        EXPECT_EQ(surface->getPixel({5, 5}), black);
        EXPECT_EQ(surface->getPixel(to), black);
    }
}

TEST(AntiAliasedLine, IsPlainAtMultiplesOf45Degrees) {
    for (const SNativePoint step : {SNativePoint{1, 0}, {0, 1}, {1, 1}, {-1, 1}, {-1, 0}}) {
        const auto surface = drawOn(white, {10, 5}, {10 + 8 * step.x, 5 + 8 * step.y}, black);
        int drawn = 0;
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x) {
                const SNativeColour pixel = surface->getPixel({x, y});
                ASSERT_TRUE(pixel == black || pixel == white);
                drawn += pixel == black ? 1 : 0;
            }
        EXPECT_EQ(drawn, 9);
        EXPECT_EQ(surface->getPixel({10 + 4 * step.x, 5 + 4 * step.y}), black);
    }
}

// One row in four columns: the weights are those of the top byte of 0.25, 0.5 and 0.75 times 65536.
TEST(AntiAliasedLine, SharesEachColumnBetweenTwoRows) {
    const auto surface = drawOn(white, {5, 5}, {9, 6}, black);
    const int errors[] = {64, 128, 192};
    for (int step = 1; step <= 3; ++step) {
        EXPECT_EQ(greyAt(*surface, 5 + step, 5), errors[step - 1]);
        EXPECT_EQ(greyAt(*surface, 5 + step, 6), 255 - errors[step - 1]);
    }
}

TEST(AntiAliasedLine, SteepLinesExchangeRowsAndColumns) {
    const auto flat = drawOn(white, {3, 3}, {14, 8}, black);
    const auto steep = drawOn(white, {3, 3}, {8, 14}, black);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(flat->getPixel({x, y}), steep->getPixel({y, x})) << x << ", " << y;
}

TEST(AntiAliasedLine, LooksTheSameFromEitherEnd) {
    const auto down = drawOn(white, {3, 3}, {14, 8}, black);
    const auto up = drawOn(white, {14, 8}, {3, 3}, black);
    const auto leftwards = drawOn(white, {16, 3}, {5, 8}, black);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 19; ++x) {
            ASSERT_EQ(down->getPixel({x, y}), up->getPixel({x, y}));
            ASSERT_EQ(down->getPixel({x, y}), leftwards->getPixel({19 - x, y}));
        }
}

TEST(AntiAliasedLine, BlendsLighterLinesTheOtherWay) {
    const auto surface = drawOn(black, {5, 5}, {9, 6}, white);
    EXPECT_EQ(greyAt(*surface, 6, 5), 191);
    EXPECT_EQ(greyAt(*surface, 6, 6), 64);
}

TEST(AntiAliasedLine, OneComparisonOfGreyDecidesForAllChannels) {
    // Green weighs more than red and blue, so the background counts as the lighter of the two.
    const auto surface = drawOn({0, 200, 0}, {5, 5}, {9, 6}, {100, 0, 100});
    EXPECT_EQ(surface->getPixel({6, 5}), (SNativeColour{25, 50, 25}));
}

TEST(AntiAliasedLine, StaysLevelWhileTheErrorDoesNotOverflow) {
    // The increment is 0, since the line rises by less than a 65536th of a pixel per column.
    const auto surface = drawOn(white, {1, 5}, {70'000, 6}, black);
    for (int x = 2; x < 20; ++x)
        ASSERT_EQ(surface->getPixel({x, 5}), black) << x;
}

}  // namespace
