#include "dspclasses/blocks/SDelayRing.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// A ring of eight samples, with the repeated one in front of them and `newest` as its write
/// position.
class CRing {
public:
    SDelayRing at(std::uint32_t newest) { return {cells.data() + 1, 7, newest}; }

    std::vector<float> cells = std::vector<float>(9, 0.0f);
};

std::vector<float> oneTo(int last) {
    std::vector<float> samples;
    for (int n = 1; n <= last; ++n)
        samples.push_back(static_cast<float>(n));
    return samples;
}

}  // namespace

TEST(SDelayRing, PlacesWrapAroundTheRing) {
    CRing memory;
    const SDelayRing ring = memory.at(2);
    EXPECT_EQ(ring.placeOf(0), 2u);
    EXPECT_EQ(ring.placeOf(2), 0u);
    EXPECT_EQ(ring.placeOf(3), 7u);
    EXPECT_EQ(ring.placeOf(3, 1), 0u);
    EXPECT_EQ(ring.placeOf(8), 2u);
}

TEST(SDelayRing, AWriteBeginsAfterTheNewestSampleAndWraps) {
    CRing memory;
    EXPECT_EQ(memory.at(5).write(oneTo(4).data(), 4), 1u);
    // The last sample of the ring, 2, is repeated in front of the first one.
    EXPECT_EQ(memory.cells, (std::vector<float>{2, 3, 4, 0, 0, 0, 0, 1, 2}));
}

TEST(SDelayRing, AWriteMayWrapMoreThanOnce) {
    CRing memory;
    EXPECT_EQ(memory.at(7).write(oneTo(19).data(), 19), 2u);
    EXPECT_EQ(memory.cells, (std::vector<float>{16, 17, 18, 19, 12, 13, 14, 15, 16}));
}

TEST(SDelayRing, CopiesTheNewestSamplesAcrossTheEnd) {
    CRing memory;
    const SDelayRing ring = memory.at(memory.at(2).write(oneTo(8).data(), 8));
    std::vector<float> samples(5);
    ring.copyNewest(samples.data(), 4);
    EXPECT_EQ(samples, (std::vector<float>{5, 6, 7, 8, 0}));
}

TEST(SDelayRing, ARunEndsBeforeAReadWouldNeedAWriteOfTheSameRun) {
    CRing memory;
    const SDelayRing ring = memory.at(0);
    EXPECT_EQ(ring.getLongestRun(0), 1);
    EXPECT_EQ(ring.getLongestRun(5), 6);
    EXPECT_EQ(ring.getLongestRun(6), 7);
    EXPECT_EQ(ring.getLongestRun(7), 1) << "its older neighbour is the newest sample";
    EXPECT_EQ(ring.getLongestRun(8 + 5), 6);
}

TEST(SDelayRing, ClearSilencesTheRepeatedSampleToo) {
    CRing memory;
    memory.cells.assign(9, 1.0f);
    memory.at(3).clear();
    EXPECT_EQ(memory.cells, std::vector<float>(9, 0.0f));
}
