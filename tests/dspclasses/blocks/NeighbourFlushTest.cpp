#include "dspclasses/blocks/NeighbourFlush.h"

#include "dspclasses/blocks/PlainDetector.h"
#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>

TEST(NeighbourFlush, InDoublePrecisionANeighbourOfAlmostZeroFlushes) {
    for (const float neighbour : {0.0f, -0.0f, 0x1p-149f, 0x1.ffffep-130f, -0x1.ffffep-130f})
        EXPECT_TRUE(isFlushedByNeighbour<double>(neighbour)) << neighbour;
    for (const float neighbour : {0x1p-129f, -0x1p-129f, 0x1p-126f, 1.0f, -3.0f})
        EXPECT_FALSE(isFlushedByNeighbour<double>(neighbour)) << neighbour;
}

TEST(NeighbourFlush, InSinglePrecisionNoNeighbourFlushes) {
    for (const float neighbour : {0.0f, 0x1p-149f, 1.0f})
        EXPECT_FALSE(isFlushedByNeighbour<float>(neighbour)) << neighbour;
}

TEST(NeighbourFlush, EqualsTheDenormalTestOfTheDoubleThatBeginsAtTheField) {
    CRandom random(1);
    const auto anyBits = [&random] { return static_cast<std::uint32_t>(random.bits() >> 32); };
    for (int i = 0; i < 10000; ++i) {
        const std::uint32_t bits = random.chance(0.5) ? anyBits() & 0x801fffffu : anyBits();
        const float field = std::bit_cast<float>(anyBits()), next = std::bit_cast<float>(bits);
        EXPECT_EQ(isFlushedByNeighbour<double>(next),
                  exponentIsZero(SPlainDetector::doubleAt(field, next)))
            << std::hex << bits;
    }
}
