#include "dspclasses/modules/TSideChain.h"

#include <algorithm>
#include <gtest/gtest.h>

template <typename Sample>
class TSideChainPrecision : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(TSideChainPrecision, Precisions);

TYPED_TEST(TSideChainPrecision, BeginsWith512SilentFrames) {
    TSideChain<TypeParam> side;
    EXPECT_EQ(side.size(), 512);
    for (const TypeParam *channel : side.channels())
        EXPECT_EQ(std::count(channel, channel + 512, TypeParam{0}), 512);
}

TYPED_TEST(TSideChainPrecision, GrowsToALongerBlockAndKeepsThatLength) {
    TSideChain<TypeParam> side;
    for (const int frames : {513, 512, 0, 513})
        side.grow(frames);
    EXPECT_EQ(side.size(), 513);
    side.left()[512] = TypeParam{1};
    side.right()[512] = TypeParam{2};
    side.grow(513);
    EXPECT_EQ(side.channels()[0][512], TypeParam{1});
    EXPECT_EQ(side.channels()[1][512], TypeParam{2});
}

TYPED_TEST(TSideChainPrecision, LosesItsContentsWhenItGrows) {
    TSideChain<TypeParam> side;
    side.left()[0] = side.right()[0] = TypeParam{1};
    side.grow(600);
    EXPECT_EQ(side.left()[0], TypeParam{0});
    EXPECT_EQ(side.right()[0], TypeParam{0});
}
