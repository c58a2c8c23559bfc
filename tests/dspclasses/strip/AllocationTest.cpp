#include "Allocation.h"

#include "dspclasses/modules/CDSPDeEsser.h"
#include "dspclasses/strip/CDSPMultiFX.h"
#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>
#include <new>

/// A module, and buffers such as a host passes to it.
template <typename Module, typename Sample>
class TAllocation : public testing::Test {
protected:
    static constexpr int longest = 4096;

    std::uint64_t countWhileProcessing(int frames) {
        const std::uint64_t before = allocationsOfThisThread();
        process(module, in.data(), out.data(), frames);
        return allocationsOfThisThread() - before;
    }

    Module module;
    TStereo<Sample> input = makeSignal<Sample>(ESignal::Noise, 5, longest);
    TStereo<Sample> output{longest};
    std::array<Sample *, 2> in = input.pointers(), out = output.pointers();
};

/// A strip with all modules in its chain.
template <typename Sample>
class StripAllocation : public TAllocation<CDSPMultiFX, Sample> {
protected:
    StripAllocation() {
        for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot)
            this->module.appendFX(slot);
    }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(StripAllocation, Precisions);

TYPED_TEST(StripAllocation, HappensOnlyForABlockLongerThanAllBefore) {
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

TYPED_TEST(StripAllocation, DoesNotHappenWhenTempoOrOrderChangesOrOnReset) {
    this->countWhileProcessing(this->longest);
    const std::uint64_t before = allocationsOfThisThread();
    for (const float bpm : {60.0f, 90.0f, 180.0f})
        this->module.setTempo(bpm);
    this->module.removeFX(kParametricSlot);
    this->module.moveFXBefore(kPanSlot, kDeEsserSlot);
    this->module.insertFX(k3BandSlot, kParametricSlot, true, true);
    this->module.resetAllModules();
    EXPECT_EQ(allocationsOfThisThread(), before);
    EXPECT_EQ(this->countWhileProcessing(this->longest), 0u);
}

TYPED_TEST(StripAllocation, LeavesTheStripUnchangedWhenItFails) {
    this->countWhileProcessing(64);
    {
        const CFailingAllocation failing(0);
        EXPECT_THROW(this->countWhileProcessing(65), std::bad_alloc);
    }
    EXPECT_EQ(this->countWhileProcessing(64), 0u);
    EXPECT_GT(this->countWhileProcessing(65), 0u);
}

/// A de-esser alone. Its side-chain buffers hold 512 frames from the start.
template <typename Sample>
class CDSPDeEsserAllocation : public TAllocation<CDSPDeEsser, Sample> {};
TYPED_TEST_SUITE(CDSPDeEsserAllocation, Precisions);

TYPED_TEST(CDSPDeEsserAllocation, HappensForABlockLongerThanAnyBefore) {
    EXPECT_EQ(this->countWhileProcessing(512), 0u);
    EXPECT_EQ(this->countWhileProcessing(513), 2u);
    EXPECT_EQ(this->countWhileProcessing(512), 0u);
    EXPECT_EQ(this->countWhileProcessing(513), 0u);
    EXPECT_EQ(this->countWhileProcessing(514), 2u);
}

TYPED_TEST(CDSPDeEsserAllocation, IsTriedAgainAfterItFailed) {
    for (const int buffer : {0, 1}) {
        const int frames = 600 + 100 * buffer;
        {
            const CFailingAllocation failing(buffer);
            EXPECT_THROW(this->countWhileProcessing(frames), std::bad_alloc);
        }
        EXPECT_EQ(this->countWhileProcessing(512), 0u);
        EXPECT_GT(this->countWhileProcessing(frames), 0u);
        EXPECT_EQ(this->countWhileProcessing(frames), 0u);
    }
}
