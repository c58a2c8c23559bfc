#include "platform/linux/drawing/CMemorySurface.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t coordinates[] = {least, least + 1, -70'000,      -1,      0,
                                        7,     70'000,    greatest - 1, greatest};
constexpr SNativeColour white{255, 255, 255, 255};
constexpr SNativeColour black{0, 0, 0, 255};

/// All rectangles between the coordinates of the table.
std::vector<SNativeRect> hostileRectangles() {
    std::vector<SNativeRect> rects;
    for (const std::int32_t left : coordinates) {
        for (const std::int32_t right : coordinates) {
            rects.push_back({left, 3, right, 9});
            rects.push_back({3, left, 9, right});
            rects.push_back({left, left, right, right});
            rects.push_back({left, right, right, left});
        }
    }
    return rects;
}

TEST(CMemorySurface, RefusesSizesThatCannotBeDrawnOn) {
    for (const std::int32_t size : {least, -1, 0, 32768, greatest}) {
        EXPECT_EQ(createNativeSurface(nullptr, size, 1, white), nullptr) << size;
        EXPECT_EQ(createNativeSurface(nullptr, 1, size, white), nullptr) << size;
        EXPECT_EQ(createNativeAlphaSurface(size, 1), nullptr) << size;
        EXPECT_EQ(createNativeAlphaSurface(1, size), nullptr) << size;
    }
    EXPECT_NE(createNativeSurface(nullptr, 32767, 1, white), nullptr);
    EXPECT_NE(createNativeAlphaSurface(1, 32767), nullptr);
}

TEST(CMemorySurface, FillsItsBackgroundInsideTheClipOnly) {
    const auto surface = CMemorySurface::create(100, 100, 0xff112233u);
    std::uint32_t *data = surface->pixelsInside(SArea{}).data;
    std::fill_n(data, 100 * 100, 7u);
    surface->setClip({20, 30, 24, 33});
    surface->setPixel({21, 31}, black);
    for (std::int32_t y = 0; y < 100; ++y) {
        for (std::int32_t x = 0; x < 100; ++x) {
            const bool isInside = x >= 20 && x < 24 && y >= 30 && y < 33;
            const std::uint32_t expected = !isInside            ? 7u
                                           : x == 21 && y == 31 ? 0xff000000u
                                                                : 0xff112233u;
            ASSERT_EQ(data[y * 100 + x], expected) << x << ", " << y;
        }
    }
}

TEST(CMemorySurface, ShowsItsBackgroundWhereverItIsLookedAt) {
    const auto surface = CMemorySurface::create(9, 9, 0xff112233u);
    std::fill_n(surface->pixelsInside(SArea{}).data, 9 * 9, 7u);
    for (const SNativeRect clip : {SNativeRect{4, 4, 5, 5}, {1, 6, 3, 8}, {6, 0, 9, 2}}) {
        surface->setClip(clip);
        surface->setPixel({clip.left, clip.top}, black);
    }
    const auto copy = createNativeSurface(nullptr, 9, 9, white);
    copy->copyFrom(*surface, {0, 0, 9, 9});
    int drawn = 0;
    for (std::int32_t y = 0; y < 9; ++y) {
        for (std::int32_t x = 0; x < 9; ++x) {
            const SNativeColour pixel = copy->getPixel({x, y});
            drawn += pixel == black ? 1 : 0;
            if (pixel != black) {
                EXPECT_EQ(pixel, (SNativeColour{0x11, 0x22, 0x33, 255})) << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(drawn, 3);
}

TEST(CMemorySurface, TakesAnyCoordinatesForShapes) {
    const auto surface = createNativeSurface(nullptr, 20, 20, white);
    const SNativePoint corner{greatest, least};
    for (const std::int32_t pen : {1, 2, 300, greatest}) {
        surface->setPen(black, pen);
        for (const SNativeRect &rect : hostileRectangles()) {
            const SNativePoint points[] = {
                {rect.left, rect.top}, {rect.right, rect.bottom}, corner};
            surface->setClip({0, 0, 20, 20});
            surface->fillRectangle(rect);
            surface->drawRectangle(rect);
            surface->drawRoundedRectangle(rect, rect.left, rect.right);
            surface->drawEllipse(rect);
            surface->drawArc(rect, points[0], points[1], true);
            surface->drawArc(rect, points[0], corner, false);
            surface->moveTo(points[0]);
            surface->lineTo(points[1]);
            surface->drawPolygon(points);
            surface->setPixel(points[0], black);
            surface->getPixel(points[1]);
            surface->setClip(rect);
        }
    }
    surface->setClip({0, 0, 20, 20});
    surface->setBrush({1, 2, 3, 255});
    surface->fillRectangle({least, least, greatest, greatest});
    EXPECT_EQ(surface->getPixel({19, 19}), (SNativeColour{1, 2, 3, 255}));
}

TEST(CMemorySurface, TakesAnyCoordinatesForPictures) {
    const auto surface = createNativeSurface(nullptr, 20, 20, white);
    const auto source = createNativeSurface(nullptr, 30, 30, black);
    const auto bitmap = createNativeAlphaSurface(30, 30)->makeBitmap();
    for (const SNativeRect &rect : hostileRectangles()) {
        surface->copyFrom(*source, rect);
        surface->blendFrom(*source, rect, {0, 0, 20, 20}, 100);
        surface->blendFrom(*source, {0, 0, 20, 20}, rect, 100);
        surface->copyBitmap(*bitmap, rect, {rect.right, rect.bottom});
        surface->copyBitmap(*bitmap, {0, 0, 20, 20}, {rect.left, rect.top});
        surface->stretchBitmap(*bitmap, rect, {0, 0, 30, 30});
        surface->stretchBitmap(*bitmap, {0, 0, 20, 20}, rect);
        surface->stretchBitmap(*bitmap, rect, rect);
        surface->blendBitmap(*bitmap, rect, {0, 0, 30, 30}, 255);
        surface->blendBitmap(*bitmap, {0, 0, 20, 20}, rect, 255);
    }
    surface->blendFrom(*source, {0, 0, 1, 1}, {least, least, greatest, greatest}, 255);
    EXPECT_EQ(surface->getPixel({0, 0}), black);
}

TEST(CMemorySurface, TakesAnyCoordinatesForSmoothShapes) {
    const auto surface = createNativeSurface(nullptr, 20, 20, white);
    const auto smooth = surface->startSmoothDrawing();
    for (const auto smoothing : {ENativeSmoothing::None, ENativeSmoothing::AntiAliased}) {
        smooth->setSmoothing(smoothing);
        for (const std::int32_t width : {least, 1, 3, greatest}) {
            const SNativeSmoothPen pen{black, width, 0};
            for (const SNativeRect &rect : hostileRectangles()) {
                const SNativePoint points[] = {
                    {rect.left, rect.top}, {rect.right, rect.bottom}, {greatest, least}};
                smooth->drawLine(pen, points[0], points[1]);
                smooth->drawRectangle(pen, rect);
                smooth->fillRectangle(black, rect);
                smooth->fillRoundedRectangle(black, rect, rect.left, rect.right);
                smooth->fillEllipse(black, rect);
                smooth->fillPolygon(black, points);
            }
        }
    }
    smooth->fillRectangle({9, 8, 7, 255}, {least, least, greatest, greatest});
    EXPECT_EQ(surface->getPixel({10, 10}), (SNativeColour{9, 8, 7, 255}));
}

}  // namespace
