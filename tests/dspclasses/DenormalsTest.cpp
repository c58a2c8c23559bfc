#include "dspclasses/Denormals.h"

#include "dspclasses/Lanes.h"
#include "dspclasses/Signals.h"

#include <gtest/gtest.h>

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

}  // namespace

TEST(Denormals, EndAsPositiveZeroAndNothingElseDoes) {
    expectEdges<float>();
    expectEdges<double>();
}

TEST(Denormals, EveryLaneIsFlushedLikeAScalar) {
    CRandom random(3);
    for (int number = 0; number < 1000; ++number) {
        float four[4], flushed[4];
        for (float &value : four)
            value = std::bit_cast<float>(static_cast<std::uint32_t>(random.bits()) & 0x80ffffffu);
        storeFour(flushed, flushDenormal(loadFour(four)));
        for (int lane = 0; lane < 4; ++lane)
            EXPECT_TRUE(sameBits(flushed[lane], flushDenormal(four[lane]))) << four[lane];

        const double a = std::bit_cast<double>(random.bits() & 0x801fffffffffffffu);
        const double b = random.real(-1.0, 1.0);
        EXPECT_TRUE(sameBits(firstOf(flushDenormal(pair(a, b))), flushDenormal(a))) << a;
        EXPECT_TRUE(sameBits(secondOf(flushDenormal(pair(b, a))), flushDenormal(a))) << a;
    }
}
