#include "dspclasses/CDSPMultiFX.h"

#include "Allocation.h"
#include "dspclasses/Signals.h"

#include <gtest/gtest.h>

#include <new>

/// A strip with every module in its chain, and the buffers of a host.
template <typename Sample>
class StripAllocation : public testing::Test {
protected:
    static constexpr int longest = 4096;

    StripAllocation() {
        for (int slot = 2; slot < 18; ++slot)
            strip.appendFX(slot);
    }

    std::uint64_t countWhileProcessing(int frames) {
        const std::uint64_t before = allocationsOfThisThread();
        process(strip, in.data(), out.data(), frames);
        return allocationsOfThisThread() - before;
    }

    CDSPMultiFX strip;
    TStereo<Sample> input = makeSignal<Sample>(ESignal::Noise, 5, longest);
    TStereo<Sample> output{longest};
    std::array<Sample *, 2> in = input.pointers(), out = output.pointers();
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(StripAllocation, Precisions);

TYPED_TEST(StripAllocation, HappensOnlyForABlockLongerThanAnyBefore) {
    EXPECT_GT(this->countWhileProcessing(64), 0u);
    EXPECT_EQ(this->countWhileProcessing(64), 0u);
    EXPECT_GT(this->countWhileProcessing(65), 0u);
    EXPECT_GT(this->countWhileProcessing(this->longest), 0u);
    CRandom random(9);
    for (int block = 0; block < 200; ++block) {
        const int frames = random.whole(0, this->longest);
        ASSERT_EQ(this->countWhileProcessing(frames), 0u) << "block of " << frames;
    }
    EXPECT_EQ(this->countWhileProcessing(this->longest), 0u);
}

TYPED_TEST(StripAllocation, DoesNotHappenForAChangeOfTempoResetOrOrder) {
    this->countWhileProcessing(this->longest);
    const std::uint64_t before = allocationsOfThisThread();
    for (const float bpm : {60.0f, 90.0f, 180.0f})
        this->strip.setTempo(bpm);
    this->strip.removeFX(9);
    this->strip.moveFXBefore(3, 12);
    this->strip.insertFX(5, 9, true, true);
    this->strip.resetAllModules();
    EXPECT_EQ(allocationsOfThisThread(), before);
    EXPECT_EQ(this->countWhileProcessing(this->longest), 0u);
}

TYPED_TEST(StripAllocation, ThatFailsLeavesTheStripAsItWas) {
    this->countWhileProcessing(64);
    {
        const CFailingAllocation failing(0);
        EXPECT_THROW(this->countWhileProcessing(65), std::bad_alloc);
    }
    EXPECT_EQ(this->countWhileProcessing(64), 0u);
    EXPECT_GT(this->countWhileProcessing(65), 0u);
}
