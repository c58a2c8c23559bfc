#include "platform/drawing/Ink.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
constexpr SNativeColour white{255, 255, 255, 255}, red{255, 0, 0, 255};

class CSmoothDrawing : public testing::TestWithParam<ENativeSmoothing> {
protected:
    void SetUp() override { drawing->setSmoothing(GetParam()); }

    std::unique_ptr<INativeSurface> surface = createNativeSurface(nullptr, 40, 30, white);
    std::unique_ptr<INativeSmoothDrawing> drawing = surface->startSmoothDrawing();
};

TEST_P(CSmoothDrawing, SquareCapsGoPastTheEnds) {
    constexpr std::int32_t squareCap = 1;
    drawing->drawLine({red, 10, squareCap}, {12, 15}, {28, 15});
    for (const std::int32_t x : {8, 12, 28, 32})
        for (const std::int32_t y : {11, 15, 19})
            EXPECT_EQ(surface->getPixel({x, y}), red) << x << ", " << y;
    for (const std::int32_t x : {6, 34})
        EXPECT_EQ(surface->getPixel({x, 15}), white) << x;
}

TEST_P(CSmoothDrawing, ALineWithoutALengthDrawsNothing) {
    constexpr std::int32_t roundCap = 2;
    drawing->drawLine({red}, {5, 5}, {5, 5});
    drawing->drawLine({red, 9, roundCap}, {20, 15}, {20, 15});
    EXPECT_EQ(inkOf(*surface, white), SNativeRect{});
}

TEST_P(CSmoothDrawing, LinesAreAtLeastOnePixelWide) {
    for (const std::int32_t width : {1, 0, -3}) {
        const auto other = createNativeSurface(nullptr, 40, 30, white);
        const auto onOther = other->startSmoothDrawing();
        onOther->setSmoothing(GetParam());
        onOther->drawLine({red, width}, {5, 5}, {35, 20});
        drawing->drawLine({red, 1}, {5, 5}, {35, 20});
        for (std::int32_t y = 0; y < 30; ++y)
            for (std::int32_t x = 0; x < 40; ++x)
                ASSERT_EQ(other->getPixel({x, y}), surface->getPixel({x, y})) << width;
        surface->setBrush(white);
        surface->fillRectangle({0, 0, 40, 30});
    }
}

TEST_P(CSmoothDrawing, AShapeFarLargerThanTheSurfaceCoversIt) {
    drawing->fillRoundedRectangle(red, {least, least, greatest, greatest}, 100, 100);
    drawing->fillRectangle(white, {0, 0, 40, 10});
    drawing->drawLine({red, 21}, {least, 5}, {greatest, 5});
    for (const std::int32_t y : {0, 5, 14, 29})
        for (const std::int32_t x : {0, 20, 39})
            EXPECT_EQ(surface->getPixel({x, y}), red) << x << ", " << y;
}

INSTANTIATE_TEST_SUITE_P(Smoothing, CSmoothDrawing,
                         testing::Values(ENativeSmoothing::None, ENativeSmoothing::AntiAliased));

TEST(CSmoothDrawingEdges, APolygonHalfCoversThePixelsAlongIt) {
    const auto surface = createNativeSurface(nullptr, 40, 30, white);
    const auto drawing = surface->startSmoothDrawing();
    drawing->setSmoothing(ENativeSmoothing::AntiAliased);
    const SNativePoint square[] = {{5, 6}, {25, 6}, {25, 20}, {5, 20}};
    drawing->fillPolygon(red, square);
    EXPECT_EQ(inkOf(*surface, white), (SNativeRect{5, 6, 26, 21}));
    for (const SNativePoint edge : {SNativePoint{15, 6}, {15, 20}, {5, 13}, {25, 13}})
        EXPECT_NEAR(surface->getPixel(edge).green, 127, 3) << edge.x << ", " << edge.y;
    EXPECT_EQ(surface->getPixel({15, 13}), red);
}

}  // namespace
