#include "corvel/audio/Quantise.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using Tessitor::Tool::quantise;

namespace {

template <typename Sample>
std::vector<std::int32_t> quantised(const std::vector<Sample> &samples, int bits,
                                    std::uint64_t *clipped = nullptr) {
    std::vector<std::int32_t> integers(samples.size());
    const std::uint64_t count = quantise(samples.data(), samples.size(), bits, integers.data());
    if (clipped != nullptr)
        *clipped = count;
    return integers;
}

}  // namespace

class QuantiseBits : public testing::TestWithParam<int> {};

TEST_P(QuantiseBits, IntegersStayUnchangedAndUnclipped) {
    const int bits = GetParam();
    const std::int64_t end = std::int64_t(1) << (bits - 1);
    std::vector<double> samples;
    std::vector<std::int32_t> expected;
    for (std::int64_t n = -end; n < end; n += std::max<std::int64_t>(1, end / 5000)) {
        samples.push_back(static_cast<double>(n) / static_cast<double>(end));
        expected.push_back(static_cast<std::int32_t>(n * (std::int64_t(1) << (32 - bits))));
    }
    samples.push_back(1.0 - 1.0 / static_cast<double>(end));
    expected.push_back(static_cast<std::int32_t>((end - 1) * (std::int64_t(1) << (32 - bits))));
    std::uint64_t clipped = 1;
    EXPECT_EQ(quantised(samples, bits, &clipped), expected);
    EXPECT_EQ(clipped, 0u);
}
INSTANTIATE_TEST_SUITE_P(Bits, QuantiseBits, testing::Values(8, 16, 24, 32));

TEST(Quantise, FloatsHold24Bits) {
    std::vector<float> samples;
    std::vector<std::int32_t> expected;
    for (int n = -8388608; n < 8388608; n += 997) {
        samples.push_back(static_cast<float>(n) / 8388608.0f);
        expected.push_back(n * 256);
    }
    EXPECT_EQ(quantised(samples, 24), expected);
}

TEST(Quantise, RoundsToTheNearestInteger) {
    const std::vector<double> steps = {0.4, 0.5, 0.6, 1.49, -0.4, -0.5, -0.6, -1.49};
    std::vector<double> samples;
    for (const double step : steps)
        samples.push_back(step / 32768.0);
    const std::vector<std::int32_t> expected = {0, 65536, 65536, 65536, 0, -65536, -65536, -65536};
    EXPECT_EQ(quantised(samples, 16), expected);
}

TEST(Quantise, SamplesOutOfRangeAreClippedAndCounted) {
    constexpr std::int32_t highest = 32767 * 65536, lowest = -32768 * 65536;
    const std::vector<float> samples = {1.0f,
                                        -1.0f,
                                        1.5f,
                                        -1.5f,
                                        32767.0f / 32768.0f,
                                        1e30f,
                                        -std::numeric_limits<float>::infinity()};
    std::uint64_t clipped = 0;
    EXPECT_EQ(
        quantised(samples, 16, &clipped),
        (std::vector<std::int32_t>{highest, lowest, highest, lowest, highest, highest, lowest}));
    EXPECT_EQ(clipped, 5u);
}

TEST(Quantise, RoundingAloneDoesNotClip) {
    std::uint64_t clipped = 1;
    quantised(std::vector<double>{32767.4 / 32768.0, -32768.4 / 32768.0}, 16, &clipped);
    EXPECT_EQ(clipped, 0u);
    quantised(std::vector<double>{32767.5 / 32768.0, -32768.5 / 32768.0}, 16, &clipped);
    EXPECT_EQ(clipped, 2u);
}

TEST(Quantise, ANaNCountsAsClipped) {
    std::uint64_t clipped = 0;
    quantised(std::vector<double>{std::numeric_limits<double>::quiet_NaN()}, 24, &clipped);
    EXPECT_EQ(clipped, 1u);
}
