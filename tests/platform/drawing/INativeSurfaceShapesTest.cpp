#include "Picture.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeSurfaceShapes, ARectangleLacksItsRightAndBottomEdges) {
    constexpr const char *picture = "......\n"
                                    ".####.\n"
                                    ".#oo#.\n"
                                    ".####.\n"
                                    "......\n";
    EXPECT_EQ(drawn(6, 5, [](auto &surface) { surface.drawRectangle({1, 1, 5, 4}); }), picture);
    EXPECT_EQ(drawn(6, 5, [](auto &surface) { surface.drawRectangle({5, 4, 1, 1}); }), picture);
}

TEST(NativeSurfaceShapes, ARectangleWithoutAnOutlineIsOnePixelSmaller) {
    EXPECT_EQ(drawn(5, 4,
                    [](auto &surface) {
                        surface.setNullPen();
                        surface.drawRectangle({1, 1, 5, 4});
                    }),
              ".....\n"
              ".ooo.\n"
              ".ooo.\n"
              ".....\n");
}

TEST(NativeSurfaceShapes, AWidePenRunsAlongTheOutline) {
    EXPECT_EQ(drawn(10, 8,
                    [](auto &surface) {
                        surface.setPen(black, 3);
                        surface.drawRectangle({1, 1, 9, 7});
                    }),
              ".########.\n"
              "##########\n"
              "##########\n"
              "###oooo###\n"
              "###oooo###\n"
              "##########\n"
              "##########\n"
              ".########.\n");
}

TEST(NativeSurfaceShapes, AnEllipseFillsItsRectangle) {
    EXPECT_EQ(drawn(9, 9,
                    [](auto &surface) {
                        surface.drawEllipse({1, 1, 8, 8});
                    }),
              ".........\n"
              "...###...\n"
              "..#ooo#..\n"
              ".#ooooo#.\n"
              ".#ooooo#.\n"
              ".#ooooo#.\n"
              "..#ooo#..\n"
              "...###...\n"
              ".........\n");
    EXPECT_EQ(drawn(16, 9,
                    [](auto &surface) {
                        surface.setNullPen();
                        surface.drawEllipse({16, 9, 0, 0});
                    }),
              "....oooooooo....\n"
              "..oooooooooooo..\n"
              ".oooooooooooooo.\n"
              "oooooooooooooooo\n"
              "oooooooooooooooo\n"
              "oooooooooooooooo\n"
              ".oooooooooooooo.\n"
              "..oooooooooooo..\n"
              "....oooooooo....\n");
}

TEST(NativeSurfaceShapes, TiesOfAnEllipseMoveBothWays) {
    EXPECT_EQ(drawn(9, 9,
                    [](auto &surface) {
                        surface.setNullBrush();
                        surface.drawEllipse({0, 0, 9, 9});
                    }),
              "...###...\n"
              ".##...##.\n"
              ".#.....#.\n"
              "#.......#\n"
              "#.......#\n"
              "#.......#\n"
              ".#.....#.\n"
              ".##...##.\n"
              "...###...\n");
}

TEST(NativeSurfaceShapes, TheCornersOfARoundedRectangleAreQuartersOfAnEllipse) {
    const auto rounded = [](std::int32_t width, std::int32_t height) {
        return drawn(10, 6, [=](auto &surface) {
            surface.drawRoundedRectangle({0, 0, 10, 6}, width, height);
        });
    };
    constexpr const char *round = ".########.\n"
                                  "#oooooooo#\n"
                                  "#oooooooo#\n"
                                  "#oooooooo#\n"
                                  "#oooooooo#\n"
                                  ".########.\n";
    EXPECT_EQ(rounded(4, 4), round);
    EXPECT_EQ(rounded(-4, -4), round);
    EXPECT_EQ(rounded(2, 4), "##########\n"
                             "#oooooooo#\n"
                             "#oooooooo#\n"
                             "#oooooooo#\n"
                             "#oooooooo#\n"
                             "##########\n");
    EXPECT_EQ(rounded(100, 100), drawn(10, 6, [](auto &surface) {
                  surface.drawEllipse({0, 0, 10, 6});
              }));
}

TEST(NativeSurfaceShapes, AnArcLacksItsLastPixel) {
    const auto arc = [](bool clockwise) {
        return drawn(12, 12, [clockwise](auto &surface) {
            const SNativePoint right{16, 5}, top{7, -4};
            surface.drawArc({0, 0, 12, 12}, clockwise ? top : right, clockwise ? right : top,
                            clockwise);
        });
    };
    EXPECT_EQ(arc(false).substr(0, 13 * 6), "............\n"
                                            "........##..\n"
                                            "..........#.\n"
                                            "..........#.\n"
                                            "...........#\n"
                                            "............\n");
    EXPECT_EQ(arc(true).substr(0, 13 * 6), ".......#....\n"
                                           "........##..\n"
                                           "..........#.\n"
                                           "..........#.\n"
                                           "............\n"
                                           "............\n");
}

TEST(NativeSurfaceShapes, APolygonHoldsThePixelsWhoseCentresLieInside) {
    EXPECT_EQ(drawn(14, 12,
                    [](auto &surface) {
                        surface.setNullPen();
                        const SNativePoint points[] = {{0, 0}, {12, 1}, {4, 11}};
                        surface.drawPolygon(points);
                    }),
              "..............\n"
              ".ooooooooooo..\n"
              ".ooooooooooo..\n"
              "..ooooooooo...\n"
              "..oooooooo....\n"
              "..ooooooo.....\n"
              "...ooooo......\n"
              "...ooooo......\n"
              "...oooo.......\n"
              "....oo........\n"
              "....o.........\n"
              "..............\n");
}

TEST(NativeSurfaceShapes, APolygonIsFilledByTheEvenOddRuleAndClosed) {
    EXPECT_EQ(drawn(9, 9,
                    [](auto &surface) {
                        const SNativePoint points[] = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0},
                                                       {2, 2}, {6, 2}, {6, 6}, {2, 6}, {2, 2}};
                        surface.drawPolygon(points);
                    }),
              "#########\n"
              "##oooooo#\n"
              "#o#####o#\n"
              "#o#...#o#\n"
              "#o#...#o#\n"
              "#o#...#o#\n"
              "#o#####o#\n"
              "#ooooooo#\n"
              "#########\n");
}

TEST(NativeSurfaceShapes, DrawNothingWithoutASize) {
    EXPECT_EQ(drawn(3, 3,
                    [](auto &surface) {
                        surface.drawRectangle({1, 0, 1, 3});
                        surface.drawEllipse({0, 1, 3, 1});
                        surface.drawRoundedRectangle({1, 1, 1, 1}, 2, 2);
                        surface.fillRectangle({1, 0, 1, 3});
                        surface.drawPolygon({});
                        surface.drawArc({1, 1, 1, 1}, {2, 1}, {1, 2}, false);
                    }),
              "...\n...\n...\n");
}

}  // namespace
