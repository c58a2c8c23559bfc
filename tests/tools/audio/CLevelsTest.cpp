#include "corvel/audio/CLevels.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using Tessitor::Tool::CLevels;
using Tessitor::Tool::decibels;

TEST(CLevels, WithoutSamplesTheLevelIsSilence) {
    const CLevels levels;
    EXPECT_EQ(levels.peak(), 0.0);
    EXPECT_EQ(levels.rms(), 0.0);
    EXPECT_EQ(decibels(levels.peak()), -std::numeric_limits<double>::infinity());
}

TEST(CLevels, FullScaleIsZeroDecibels) {
    EXPECT_EQ(decibels(1.0), 0.0);
    EXPECT_NEAR(decibels(0.5), -6.0206, 1e-4);
}

class CLevelsLengths : public testing::TestWithParam<std::size_t> {};

TEST_P(CLevelsLengths, EverySampleCountsAtAnyPosition) {
    const std::size_t length = GetParam();
    for (std::size_t place = 0; place < length; ++place) {
        std::vector<float> samples(length, 0.25f);
        samples[place] = -0.75f;
        CLevels levels;
        levels.add(samples.data(), samples.size());
        EXPECT_EQ(levels.peak(), 0.75);
        const double squares = 0.5625 + 0.0625 * static_cast<double>(length - 1);
        EXPECT_NEAR(levels.rms(), std::sqrt(squares / static_cast<double>(length)), 1e-15);
    }
}
INSTANTIATE_TEST_SUITE_P(Lengths, CLevelsLengths, testing::Values(1, 2, 7, 8, 9, 15, 16, 17, 31));

TEST(CLevels, PartsAddUp) {
    const std::vector<double> samples = {0.1, -0.9, 0.3, 0.2, 0.8, -0.4, 0.6, 0.5, 0.7, -0.3, 0.25};
    CLevels whole, pieces;
    whole.add(samples.data(), samples.size());
    pieces.add(samples.data(), 3);
    pieces.add(samples.data() + 3, 0);
    pieces.add(samples.data() + 3, samples.size() - 3);
    EXPECT_EQ(pieces.peak(), whole.peak());
    EXPECT_NEAR(pieces.rms(), whole.rms(), 1e-15);
}
