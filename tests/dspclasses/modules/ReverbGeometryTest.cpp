#include "dspclasses/modules/ReverbGeometry.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

using Lengths = std::array<int, 4>;
using Floats = std::array<float, 4>;

TEST(ReverbGeometry, ComputesTheLengthsOfTheDefaultRoom) {
    const SReverbRoom room = reverbRoom(100.0f, 44100.0f);
    EXPECT_NEAR(room.delayBase, 12965.4f, 0.001f);
    EXPECT_EQ(room.tailLengths, (Floats{12965.0f, 10586.0f, 9167.0f, 8199.0f}));
    EXPECT_EQ(room.tapOffsets, (Floats{5320.0f, 3894.0f, 2014.0f, 5.0f}));
}

TEST(ReverbGeometry, ComputesTheLengthsOfTheSmallestRoom) {
    const SReverbRoom room = reverbRoom(1.0f, 44100.0f);
    EXPECT_EQ(room.tailLengths, (Floats{129.0f, 105.0f, 91.0f, 81.0f}));
    EXPECT_EQ(room.tapOffsets, (Floats{58.0f, 43.0f, 25.0f, 5.0f}));
}

TEST(ReverbGeometry, TheLongestLineIsTheTravelTimeOfSoundThroughTheRoom) {
    EXPECT_NEAR(reverbRoom(340.0f, 44100.0f).tailLengths[0], 44100.0f, 44100.0f * 1e-3f);
}

TEST(ReverbGeometry, TheLinesAreShorterBySquareRoots) {
    const SReverbRoom room = reverbRoom(400.0f, 44100.0f);
    for (std::size_t k = 0; k < 4; ++k) {
        const double ratio = std::sqrt(2.0 / (2.0 + static_cast<double>(k)));
        EXPECT_NEAR(room.tailLengths[k], double{room.delayBase} * ratio, 2.0) << k;
    }
}

TEST(ReverbGeometry, TheCapacityFitsTheLongestLineOfTheLargestRoom) {
    EXPECT_EQ(reverbLineCapacity(44100.0f), 52882u);
    EXPECT_GT(static_cast<float>(reverbLineCapacity(44100.0f)),
              reverbRoom(400.0f, 44100.0f).tailLengths[0] + 1.0f);
}

TEST(ReverbGeometry, TheDiffusersOfASideAddUpToTheShortestLine) {
    for (const float spread : {0.0f, 0.3f, 1.0f}) {
        const SDiffuserLengths lengths = diffuserLengths(spread, 1341.0f);
        for (const Lengths &side : {lengths.left, lengths.right})
            EXPECT_EQ(std::accumulate(side.begin(), side.end(), 0), 1341) << spread;
    }
}

TEST(ReverbGeometry, WithoutSpreadBothSidesHaveTheBaseLengths) {
    const SDiffuserLengths lengths = diffuserLengths(0.0f, 1341.0f);
    EXPECT_EQ(lengths.left, (Lengths{210, 159, 562, 410}));
    EXPECT_EQ(lengths.right, lengths.left);
}

TEST(ReverbGeometry, SpreadDetunesTheSides) {
    // A spread of 1 shifts the left marks by 6 and 128 samples, the right ones by -28 and -19.
    const SDiffuserLengths lengths = diffuserLengths(1.0f, 1341.0f);
    EXPECT_EQ(lengths.left, (Lengths{210, 165, 1059 - 375, 1341 - 1059}));
    EXPECT_EQ(lengths.right, (Lengths{210, 131, 912 - 341, 429}));
}

TEST(ReverbGeometry, TheRoomScalesTheDiffusers) {
    const SDiffuserLengths lengths = diffuserLengths(0.0f, 2682.0f);
    EXPECT_EQ(lengths.left, (Lengths{420, 318, 1124, 820}));
    const SDiffuserLengths cut = diffuserLengths(0.0f, 81.0f);
    EXPECT_EQ(cut.left, (Lengths{12, 9, 33, 24}));
}

TEST(ReverbGeometry, LengthsStayPositiveInTheSmallestRoom) {
    for (int step = 0; step <= 1000; ++step) {
        const SDiffuserLengths lengths = diffuserLengths(static_cast<float>(step) * 0.001f, 81.0f);
        for (const Lengths &side : {lengths.left, lengths.right})
            for (const int length : side)
                ASSERT_GT(length, 0) << step;
    }
}

TEST(ReverbGeometry, IsDefinedForASpreadOfNaN) {
    const SDiffuserLengths lengths = diffuserLengths(NAN, 1341.0f);
    EXPECT_EQ(lengths.left[0], 210);
    EXPECT_EQ(diffuserLengths(INFINITY, 1341.0f).left[0], 210);
}
