#include "corvel/render/TAutoTail.h"

#include <gtest/gtest.h>

using Tessitor::Tool::TAutoTail;

namespace {

constexpr double loud = 3.2e-5, quiet = 3.1e-5;  // on both sides of -90 dBFS

// Passes a tail in pieces of some frames.
template <typename Sample>
std::vector<Sample> pass(TAutoTail<Sample> &tail, const std::vector<Sample> &samples,
                         std::size_t piece) {
    std::vector<Sample> passed;
    for (std::size_t i = 0; i < samples.size(); i += 2 * piece) {
        const std::size_t count = std::min(2 * piece, samples.size() - i);
        const auto part = tail.pass({samples.data() + i, count});
        passed.insert(passed.end(), part.begin(), part.end());
    }
    return passed;
}

}  // namespace

template <typename Sample>
class TAutoTailTest : public testing::Test {};
using Samples = testing::Types<float, double>;
TYPED_TEST_SUITE(TAutoTailTest, Samples);

TYPED_TEST(TAutoTailTest, EndsWithTheLastLoudFrameBeforeALongSilence) {
    std::vector<TypeParam> samples(2 * 40, TypeParam(quiet));
    samples[2 * 3] = TypeParam(-loud);      // left
    samples[2 * 12 + 1] = TypeParam(loud);  // right, after 8 silent frames
    samples[2 * 23 + 1] = TypeParam(loud);  // after 10: too late
    for (const std::size_t piece : {1u, 2u, 7u, 10u, 40u}) {
        TAutoTail<TypeParam> tail(2, 10);
        EXPECT_EQ(pass(tail, samples, piece),
                  std::vector<TypeParam>(samples.begin(), samples.begin() + 2 * 13))
            << piece;
        EXPECT_TRUE(tail.isOver());
    }
}

TYPED_TEST(TAutoTailTest, IsEmptyIfNothingIsLoud) {
    TAutoTail<TypeParam> tail(2, 10);
    EXPECT_TRUE(pass(tail, std::vector<TypeParam>(2 * 9), 4).empty());
    EXPECT_FALSE(tail.isOver());
    EXPECT_TRUE(pass(tail, std::vector<TypeParam>(2), 4).empty());
    EXPECT_TRUE(tail.isOver());
}

TYPED_TEST(TAutoTailTest, GoesOnWhileItIsLoud) {
    TAutoTail<TypeParam> tail(2, 10);
    const std::vector<TypeParam> samples(2 * 1000, TypeParam(loud));
    EXPECT_EQ(pass(tail, samples, 64), samples);
    EXPECT_FALSE(tail.isOver());
}
