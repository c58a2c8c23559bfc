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
    constexpr SNativeRect rect{3, 3, 17, 17};
    EXPECT_EQ(drawn(20, 14,
                    [&](auto &surface) {
                        surface.setPen(black, 5);
                        surface.drawArc(rect, {40, 10}, {-20, 10}, false);
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
    EXPECT_EQ(drawn(14, 20,
                    [&](auto &surface) {
                        surface.setPen(black, 5);
                        surface.drawArc(rect, {10, -20}, {10, 40}, false);
                    }),
              "..............\n"
              ".......#####..\n"
              ".....########.\n"
              "....#########.\n"
              "...##########.\n"
              "..##########..\n"
              "..######......\n"
              ".######.......\n"
              ".#####........\n"
              ".#####........\n"
              ".#####........\n"
              ".#####........\n"
              ".######.......\n"
              "..######......\n"
              "..##########..\n"
              "...##########.\n"
              "....#########.\n"
              ".....########.\n"
              ".......#####..\n"
              "..............\n");
}

TEST(CMemorySurface, AFlatEllipseHasAClosedOutline) {
    EXPECT_EQ(drawn(24, 3,
                    [](auto &surface) {
                        surface.drawEllipse({0, 0, 24, 3});
                    }),
              "....################....\n"
              "####oooooooooooooooo####\n"
              "....################....\n");
}

TEST(CMemorySurface, AnEvenPenIsAsWideAllAroundAnEllipse) {
    EXPECT_EQ(drawn(14, 14,
                    [](auto &surface) {
                        surface.setPen(black, 2);
                        surface.setNullBrush();
                        surface.drawEllipse({2, 2, 13, 13});
                    }),
              "..............\n"
              ".....####.....\n"
              "...########...\n"
              "..###....###..\n"
              "..##......##..\n"
              ".##........##.\n"
              ".##........##.\n"
              ".##........##.\n"
              ".##........##.\n"
              "..##......##..\n"
              "..###....###..\n"
              "...########...\n"
              ".....####.....\n"
              "..............\n");
}

TEST(CMemorySurface, FlatCornersMakeNoRoundedRectangle) {
    const auto withoutOutline = [](std::int32_t width, std::int32_t height) {
        return drawn(10, 6, [=](auto &surface) {
            surface.setNullPen();
            surface.drawRoundedRectangle({0, 0, 10, 6}, width, height);
        });
    };
    EXPECT_EQ(withoutOutline(2, 4), withoutOutline(0, 0));
    EXPECT_EQ(withoutOutline(4, 2), withoutOutline(0, 0));
    EXPECT_NE(withoutOutline(4, 4), withoutOutline(0, 0));
}

TEST(CMemorySurface, AClipMayHaveExchangedEdges) {
    EXPECT_EQ(drawn(5, 3,
                    [](auto &surface) {
                        surface.setClip({4, 3, 1, 1});
                        surface.fillRectangle({0, 0, 5, 3});
                        surface.setClip({0, 0, 5, 3});
                    }),
              ".....\n"
              ".ooo.\n"
              ".ooo.\n");
}

}  // namespace
