#include "dspclasses/kernels/Denormals.h"

#include "dspclasses/kernels/StereoFrames.h"
#include "dspclasses/support/Signals.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

template <typename Sample>
void expectFlushed(Sample value, Sample expected) {
    EXPECT_TRUE(sameBits(flushDenormal(value), expected)) << value;
    EXPECT_EQ(isDenormalOrZero(value), expected == Sample{0}) << value;
}

template <typename Sample>
void expectEdges() {
    using Limits = std::numeric_limits<Sample>;
    for (const Sample sign : {Sample{1}, Sample{-1}}) {
        expectFlushed(sign * Sample{0}, Sample{0});
        expectFlushed(sign * Limits::denorm_min(), Sample{0});
        expectFlushed(std::nextafter(sign * Limits::min(), Sample{0}), Sample{0});
        expectFlushed(sign * Limits::min(), sign * Limits::min());
        expectFlushed(sign * Sample{1}, sign * Sample{1});
        expectFlushed(sign * Limits::infinity(), sign * Limits::infinity());
        expectFlushed(sign * Limits::quiet_NaN(), sign * Limits::quiet_NaN());
    }
}

/// The exponents of zero, of the smallest normal number, and of infinities and NaNs.
template <typename Sample>
constexpr std::uint64_t exponentBits[3] = {0, 0x00800000u, 0x7f800000u};
template <>
constexpr std::uint64_t exponentBits<double>[3] = {0, 0x0010000000000000u, 0x7ff0000000000000u};

}  // namespace

TEST(Denormals, AndZerosBecomePositiveZeroAndNothingElseDoes) {
    expectEdges<float>();
    expectEdges<double>();
}

TEST(Denormals, EveryLaneIsFlushedLikeAScalar) {
    CRandom random(3);
    for (int number = 0; number < 1000; ++number) {
        // Signs and low bits at random; the exponent is zero, the smallest normal one, or that of
        // infinity.
        const std::uint64_t bits = random.bits();
        const auto exponent = static_cast<std::uint64_t>(random.whole(0, 2));
        const float single = std::bit_cast<float>(
            static_cast<std::uint32_t>((bits & 0x807fffffu) | exponentBits<float>[exponent]));
        const double twofold =
            std::bit_cast<double>((bits & 0x800fffffffffffffu) | exponentBits<double>[exponent]);
        for (int lane = 0; lane < 4; ++lane) {
            float four[4] = {1.0f, 2.0f, 3.0f, 4.0f}, flushed[4];
            four[lane] = single;
            storeFour(flushed, flushDenormal(loadFour(four)));
            for (int other = 0; other < 4; ++other)
                EXPECT_TRUE(sameBits(flushed[other], flushDenormal(four[other]))) << four[other];
        }
        const SDoubles2 first = flushDenormal(frameOf(twofold, 1.0));
        const SDoubles2 second = flushDenormal(frameOf(1.0, twofold));
        EXPECT_TRUE(sameBits(leftOf(first), flushDenormal(twofold))) << twofold;
        EXPECT_TRUE(sameBits(rightOf(second), flushDenormal(twofold))) << twofold;
        EXPECT_EQ(rightOf(first), 1.0);
        EXPECT_EQ(leftOf(second), 1.0);
    }
}
