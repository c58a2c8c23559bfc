#include "Picture.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

void drawLine(INativeSurface &surface, SNativePoint from, SNativePoint to) {
    surface.moveTo(from);
    surface.lineTo(to);
}

/// What the line should set: one pixel for each step along its longer axis but the last. Of two
/// equally near pixels it takes the upper or left one.
std::string expectedLine(std::int32_t size, SNativePoint from, SNativePoint to) {
    std::string text;
    for (std::int32_t y = 0; y < size; ++y)
        text += std::string(static_cast<std::size_t>(size), '.') + '\n';
    const std::int32_t dx = to.x - from.x, dy = to.y - from.y;
    const std::int32_t steps = std::max(std::abs(dx), std::abs(dy));
    const auto at = [steps](std::int32_t start, std::int32_t distance, std::int32_t step) {
        const std::int32_t doubled = 2 * (start * steps + distance * step) + steps - 1;
        return doubled / (2 * steps);
    };
    for (std::int32_t step = 0; step < steps; ++step)
        text[static_cast<std::size_t>(at(from.y, dy, step) * (size + 1) + at(from.x, dx, step))] =
            '#';
    return text;
}

TEST(NativeSurfaceLines, TakeTheNearestPixelsInEveryDirection) {
    constexpr std::int32_t size = 25;
    constexpr SNativePoint centre{12, 12};
    for (std::int32_t y = 0; y < size; ++y) {
        for (std::int32_t x = 0; x < size; ++x)
            EXPECT_EQ(drawn(size, size,
                            [&](auto &surface) {
                                drawLine(surface, centre, {x, y});
                            }),
                      expectedLine(size, centre, {x, y}))
                << x << ", " << y;
    }
}

TEST(NativeSurfaceLines, LongLinesSetTheSamePixelsInsideTheClip) {
    // The same line, from points whose distance is a whole number of its periods.
    for (const SNativePoint period : {SNativePoint{7, 3}, {-5, 11}, {13, -13}, {-9, -4}}) {
        const auto line = [&](std::int32_t periods) {
            return drawn(30, 30, [&](auto &surface) {
                surface.setClip({3, 4, 27, 25});
                drawLine(surface, {15 - periods * period.x, 15 - periods * period.y},
                         {15 + periods * period.x, 15 + periods * period.y});
            });
        };
        EXPECT_EQ(line(1'000'000), line(10));
    }
}

TEST(NativeSurfaceLines, GoOnFromTheCurrentPosition) {
    EXPECT_EQ(drawn(6, 4,
                    [](auto &surface) {
                        surface.lineTo({4, 0});
                        surface.lineTo({4, 3});
                    }),
              "#####.\n"
              "....#.\n"
              "....#.\n"
              "......\n");
}

TEST(NativeSurfaceLines, ANullPenDrawsNone) {
    EXPECT_EQ(drawn(3, 1,
                    [](auto &surface) {
                        surface.setNullPen();
                        surface.lineTo({3, 0});
                    }),
              "...\n");
}

TEST(NativeSurfaceLines, AreAtLeastOnePixelWide) {
    for (const std::int32_t width : {0, 1})
        EXPECT_EQ(drawn(4, 1,
                        [width](auto &surface) {
                            surface.setPen(black, width);
                            surface.lineTo({3, 0});
                        }),
                  "###.\n")
            << width;
}

TEST(NativeSurfaceLines, WideLinesHaveRoundEnds) {
    const auto wide = [](std::int32_t width) {
        return drawn(11, 7, [width](auto &surface) {
            surface.setPen(black, width);
            drawLine(surface, {3, 3}, {7, 3});
        });
    };
    EXPECT_EQ(wide(3), "...........\n"
                       "...........\n"
                       "...#####...\n"
                       "..#######..\n"
                       "...#####...\n"
                       "...........\n"
                       "...........\n");
    EXPECT_EQ(wide(4), "...........\n"
                       "..######...\n"
                       ".########..\n"
                       ".########..\n"
                       "..######...\n"
                       "...........\n"
                       "...........\n");
}

}  // namespace
