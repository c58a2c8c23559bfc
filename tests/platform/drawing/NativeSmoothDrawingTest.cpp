#include "Ink.h"

#include <cmath>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

// Shapes only; NativeSmoothTextTest.cpp has the text. Systems differ in the pixels along curved and
// slanted edges, and Wine 8 draws those without smoothing, so edges have a tolerance there.

namespace {

constexpr SNativeColour white{255, 255, 255}, red{255, 0, 0}, translucent{0, 0, 0, 128};

bool isAbout(SNativeColour a, SNativeColour b) {
    return std::abs(a.red - b.red) <= 1 && std::abs(a.green - b.green) <= 1 &&
           std::abs(a.blue - b.blue) <= 1;
}

class NativeSmoothDrawing : public testing::TestWithParam<ENativeSmoothing> {
protected:
    void SetUp() override { drawing->setSmoothing(GetParam()); }
    void TearDown() override { drawing.reset(); }

    /// Expects a red shape on white.
    /// @param depth  how far inside the shape a point lies; negative outside.
    void expectShape(const std::function<double(double x, double y)> &depth) const {
        constexpr double tolerance = 1.5;
        for (std::int32_t y = 0; y < surface->getHeight(); ++y) {
            for (std::int32_t x = 0; x < surface->getWidth(); ++x) {
                const double inside = depth(x + 0.5, y + 0.5);
                if (std::abs(inside) < tolerance)
                    continue;
                EXPECT_EQ(surface->getPixel({x, y}), inside > 0 ? red : white) << x << ", " << y;
            }
        }
    }

    CNativeSmoothSession session;
    std::unique_ptr<INativeSurface> surface = createNativeSurface(nullptr, 40, 30, white);
    std::unique_ptr<INativeSmoothDrawing> drawing = surface->startSmoothDrawing();
};

TEST(NativeSmoothSession, MayBeNested) {
    const auto surface = createNativeSurface(nullptr, 4, 4, white);
    const CNativeSmoothSession outer;
    EXPECT_TRUE(outer.isAvailable());
    {
        const CNativeSmoothSession inner;
        EXPECT_TRUE(inner.isAvailable());
    }
    EXPECT_NE(surface->startSmoothDrawing(), nullptr);
    EXPECT_NE(createNativeAlphaSurface(4, 4), nullptr);
}

TEST_P(NativeSmoothDrawing, AFilledRectangleLacksItsRightAndBottomEdges) {
    drawing->fillRectangle(red, {5, 6, 20, 15});
    EXPECT_EQ(inkOf(*surface, white), (SNativeRect{5, 6, 20, 15}));
    for (int y = 6; y < 15; ++y)
        for (int x = 5; x < 20; ++x)
            EXPECT_EQ(surface->getPixel({x, y}), red);
}

TEST_P(NativeSmoothDrawing, AnOutlineHasItsRightAndBottomEdges) {
    drawing->drawRectangle({red}, {5, 6, 20, 15});
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool isInside = x >= 5 && x <= 20 && y >= 6 && y <= 15;
            const bool isEdge = isInside && (x == 5 || x == 20 || y == 6 || y == 15);
            EXPECT_EQ(surface->getPixel({x, y}), isEdge ? red : white) << x << ", " << y;
        }
    }
}

TEST_P(NativeSmoothDrawing, DrawsStraightLines) {
    // Whether the last pixel belongs to the line depends on the system.
    drawing->drawLine({red}, {5, 6}, {20, 6});
    drawing->drawLine({red}, {30, 6}, {30, 20});
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool isLine = (y == 6 && x >= 5 && x < 20) || (x == 30 && y >= 6 && y < 20);
            const bool isLast = (x == 20 && y == 6) || (x == 30 && y == 20);
            if (isLast)
                continue;
            EXPECT_EQ(surface->getPixel({x, y}), isLine ? red : white) << x << ", " << y;
        }
    }
}

TEST_P(NativeSmoothDrawing, DrawsSlantedLines) {
    drawing->drawLine({red}, {5, 5}, {35, 20});
    for (int x = 6; x < 35; ++x) {
        const int row = 5 + (x - 5) / 2;
        int darkness = 0;
        for (int y = 0; y < 30; ++y) {
            const int share = 255 - surface->getPixel({x, y}).green;
            darkness += share;
            EXPECT_TRUE(share == 0 || std::abs(y - row) <= 2) << x << ", " << y;
        }
        EXPECT_NEAR(darkness, 255, 90) << x;
    }
}

TEST_P(NativeSmoothDrawing, DrawsWideLines) {
    drawing->drawLine({red, 7}, {5, 15}, {35, 15});
    expectShape([](double x, double y) {
        return std::min({x - 5, 35 - x, 3.5 - std::abs(y - 15.5)});
    });
}

TEST_P(NativeSmoothDrawing, RoundCapsGoPastTheEnds) {
    constexpr std::int32_t roundCap = 2;
    drawing->drawLine({red, 11, roundCap}, {12, 15}, {28, 15});
    for (const std::int32_t x : {9, 12, 20, 28, 31})
        EXPECT_EQ(surface->getPixel({x, 15}), red) << x;
    for (const std::int32_t x : {4, 36})
        EXPECT_EQ(surface->getPixel({x, 15}), white) << x;
    EXPECT_EQ(surface->getPixel({7, 10}), white);
    EXPECT_EQ(surface->getPixel({33, 20}), white);
}

TEST_P(NativeSmoothDrawing, FillsAnEllipse) {
    drawing->fillEllipse(red, {4, 5, 36, 25});
    expectShape(
        [](double x, double y) { return 10 * (1 - std::hypot((x - 20) / 16, (y - 15) / 10)); });
}

TEST_P(NativeSmoothDrawing, FillsARoundedRectangle) {
    drawing->fillRoundedRectangle(red, {4, 5, 36, 25}, 16, 12);
    expectShape([](double x, double y) {
        const double beyondX = std::max(std::abs(x - 20) - 8, 0.0) / 8;
        const double beyondY = std::max(std::abs(y - 15) - 4, 0.0) / 6;
        return 6 * (1 - std::hypot(beyondX, beyondY));
    });
}

TEST_P(NativeSmoothDrawing, ARoundedRectangleWithoutCornersIsARectangle) {
    drawing->fillRoundedRectangle(red, {4, 5, 36, 25}, 0, 0);
    EXPECT_EQ(inkOf(*surface, white), (SNativeRect{4, 5, 36, 25}));
    EXPECT_EQ(surface->getPixel({4, 5}), red);
    EXPECT_EQ(surface->getPixel({35, 24}), red);
}

TEST_P(NativeSmoothDrawing, CornersLargerThanTheRectangleGiveAnEllipse) {
    drawing->fillRoundedRectangle(red, {4, 5, 36, 25}, 100, 100);
    expectShape(
        [](double x, double y) { return 10 * (1 - std::hypot((x - 20) / 16, (y - 15) / 10)); });
}

TEST_P(NativeSmoothDrawing, FillsAPolygon) {
    const std::vector<SNativePoint> triangle = {{5, 5}, {35, 5}, {5, 25}};
    drawing->fillPolygon(red, triangle);
    expectShape([](double x, double y) {
        const double belowSlope = (20 * (x - 5) + 30 * (y - 5) - 600) / std::hypot(20, 30);
        return std::min({x - 5, y - 5, -belowSlope});
    });
}

TEST_P(NativeSmoothDrawing, FillsAPolygonByTheEvenOddRule) {
    // One square inside another, both in the same direction
    const std::vector<SNativePoint> squares = {{4, 4},   {34, 4},  {34, 26}, {4, 26},  {4, 4},
                                               {12, 10}, {26, 10}, {26, 20}, {12, 20}, {12, 10}};
    drawing->fillPolygon(red, squares);
    EXPECT_EQ(surface->getPixel({31, 24}), red);
    EXPECT_EQ(surface->getPixel({20, 15}), white);
}

TEST_P(NativeSmoothDrawing, AShapeWithoutAnAreaDrawsNothing) {
    drawing->fillRectangle(red, {5, 5, 5, 20});
    drawing->fillRectangle(red, {20, 5, 5, 20});
    drawing->fillEllipse(red, {5, 5, 5, 5});
    drawing->fillRoundedRectangle(red, {20, 5, 5, 20}, 4, 4);
    drawing->fillPolygon(red, {});
    const std::vector<SNativePoint> line = {{5, 5}, {20, 5}};
    drawing->fillPolygon(red, line);
    EXPECT_EQ(inkOf(*surface, white), SNativeRect{});
}

TEST_P(NativeSmoothDrawing, ATranslucentColourIsBlended) {
    drawing->fillRectangle(translucent, {0, 0, 10, 10});
    drawing->fillEllipse(translucent, {10, 0, 40, 30});
    drawing->drawLine({translucent}, {0, 20}, {10, 20});
    for (const SNativePoint point : {SNativePoint{5, 5}, {25, 15}, {5, 20}})
        EXPECT_TRUE(isAbout(surface->getPixel(point), {127, 127, 127})) << surface->getPixel(point);
}

TEST_P(NativeSmoothDrawing, DrawsInsideItsOwnClipAndThatOfTheSurface) {
    surface->setClip({10, 0, 40, 20});
    drawing->setClip({0, 5, 25, 30});
    drawing->fillEllipse(red, {-50, -50, 90, 80});
    surface->setClip({0, 0, 40, 30});
    EXPECT_EQ(inkOf(*surface, white), (SNativeRect{10, 5, 25, 20}));
    drawing->resetClip();
    drawing->fillRectangle(red, {0, 0, 40, 30});
    EXPECT_EQ(inkOf(*surface, white), (SNativeRect{0, 0, 40, 30}));
}

TEST_P(NativeSmoothDrawing, WithoutSmoothingAPixelIsSetOrNot) {
    drawing->setSmoothing(ENativeSmoothing::None);
    drawing->fillEllipse(red, {4, 5, 36, 25});
    drawing->drawLine({red, 2}, {0, 0}, {39, 13});
    const std::vector<SNativePoint> triangle = {{0, 10}, {12, 29}, {0, 29}};
    drawing->fillPolygon(red, triangle);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            const SNativeColour pixel = surface->getPixel({x, y});
            EXPECT_TRUE(pixel == red || pixel == white) << x << ", " << y << ": " << pixel;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Smoothing, NativeSmoothDrawing,
                         testing::Values(ENativeSmoothing::None, ENativeSmoothing::HighQuality,
                                         ENativeSmoothing::AntiAliased));

}  // namespace
