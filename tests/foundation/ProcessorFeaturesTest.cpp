#include "foundation/ProcessorFeatures.h"

#include <gtest/gtest.h>

using namespace Tessitor::Basics;

namespace {

/// The features as a text, one character each.
std::string features(std::uint32_t ecx, std::uint32_t edx) {
    const SProcessorFeatures decoded = decodeProcessorFeatures(ecx, edx);
    std::string text;
    text += decoded.hasMmx ? 'M' : '-';
    text += decoded.hasSse ? '1' : '-';
    text += decoded.hasSse2 ? '2' : '-';
    text += decoded.hasSse3 ? '3' : '-';
    text += decoded.hasHt ? 'H' : '-';
    return text;
}

TEST(ProcessorFeatures, EachHasItsOwnBit) {
    EXPECT_EQ(features(0, 0), "-----");
    EXPECT_EQ(features(0, 0x00800000), "M----");
    EXPECT_EQ(features(0, 0x02000000), "-1---");
    EXPECT_EQ(features(0, 0x04000000), "--2--");
    EXPECT_EQ(features(0x00000001, 0), "---3-");
    EXPECT_EQ(features(0, 0x10000000), "----H");
}

TEST(ProcessorFeatures, AvxCountsAsSse3) {
    EXPECT_EQ(features(0x10000000, 0), "---3-");
}

TEST(ProcessorFeatures, NoOtherBitCounts) {
    EXPECT_EQ(features(~0x10000001u, ~0x16800000u), "-----");
}

TEST(ProcessorFeatures, AreStoredOnceRead) {
    readProcessorFeatures();
    EXPECT_TRUE(getProcessorFeatures().hasMmx);
    EXPECT_TRUE(getProcessorFeatures().hasSse);
    EXPECT_TRUE(getProcessorFeatures().hasSse2);
}

}  // namespace
