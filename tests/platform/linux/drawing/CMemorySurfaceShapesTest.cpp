#include "platform/drawing/Picture.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

TEST(CMemorySurface, APolygonOfTwoPointsIsALineWithBothEnds) {
    EXPECT_EQ(drawn(7, 3,
                    [](auto &surface) {
                        const SNativePoint points[] = {{1, 1}, {5, 1}};
                        surface.drawPolygon(points);
                    }),
              ".......\n"
              ".#####.\n"
              ".......\n");
}

TEST(CMemorySurface, TheLargestPolygonHasStraightEdges) {
    const auto triangle = [](std::int32_t low, std::int32_t high) {
        return drawn(9, 9, [=](auto &surface) {
            surface.setNullPen();
            const SNativePoint points[] = {{low, low}, {high, high}, {low, high}};
            surface.drawPolygon(points);
        });
    };
    EXPECT_EQ(triangle(std::numeric_limits<std::int32_t>::min(),
                       std::numeric_limits<std::int32_t>::max()),
              triangle(-100, 100));
}

TEST(CMemorySurface, AWholeArcIsTheOutlineOfItsEllipse) {
    for (const std::int32_t width : {1, 2, 5}) {
        const auto outline = [width](bool isArc) {
            return drawn(30, 20, [=](auto &surface) {
                const SNativeRect rect{4, 3, 26, 16};
                surface.setPen(black, width);
                surface.setNullBrush();
                isArc ? surface.drawArc(rect, {0, 0}, {0, 0}, false) : surface.drawEllipse(rect);
            });
        };
        EXPECT_EQ(outline(true), outline(false)) << width;
    }
}

TEST(CMemorySurface, AWideArcHasRoundEnds) {
    EXPECT_EQ(drawn(20, 14,
                    [](auto &surface) {
                        surface.setPen(black, 5);
                        surface.drawArc({3, 3, 17, 17}, {40, 10}, {-20, 10}, false);
                    }),
              "....................\n"
              ".......######.......\n"
              ".....##########.....\n"
              "....############....\n"
              "...##############...\n"
              "..################..\n"
              "..######....######..\n"
              ".######......######.\n"
              ".#####........#####.\n"
              ".#####........#####.\n"
              ".#####........#####.\n"
              ".#####........#####.\n"
              "..###..........###..\n"
              "....................\n");
}

}  // namespace
