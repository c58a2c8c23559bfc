#include "corvel/settings/Chain.h"

#include "corvel/console/Errors.h"
#include "dspclasses/strip/CDSPMultiFX.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;
using Tessitor::Corvel::SProgram;

TEST(Chain, LabelsEqualThoseOfTheStrip) {
    CDSPMultiFX strip;
    for (int slot = 2; slot < 18; ++slot) {
        char label[64];
        strip.getFXName(slot, label);
        EXPECT_EQ(moduleLabel(slot), label);
        EXPECT_EQ(chainFromText(label), Chain{slot});
    }
}

TEST(Chain, TextIsReadInOrderAndCaseIsIgnored) {
    EXPECT_EQ(chainFromText("rumble filter, COMPRESSOR ,3Band,reverb"),
              (Chain{kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kReverbSlot}));
}

TEST(Chain, AnEmptyTextAndNoneGiveTheEmptyChain) {
    EXPECT_EQ(chainFromText(""), Chain{});
    EXPECT_EQ(chainFromText("  "), Chain{});
    EXPECT_EQ(chainFromText("None"), Chain{});
}

TEST(Chain, AllSixteenModulesFit) {
    Chain all;
    std::string text;
    for (int slot = kLastModuleSlot; slot >= kFirstModuleSlot; --slot) {
        all.push_back(slot);
        text.append(text.empty() ? "" : ",").append(moduleLabel(slot));
    }
    EXPECT_EQ(chainFromText(text), all);
}

TEST(Chain, UnknownFixedAndRepeatedModulesAreRefused) {
    for (const char *text : {"Flanger", "InGain", "MonoType", "Gate,Gate", "Gate,,Pan", "Gate,"})
        EXPECT_THROW(chainFromText(text), CCallError) << text;
}

TEST(Chain, AChainThatIsSetIsLinkedBothWays) {
    SProgram program{};
    setChain(program, {kRumbleFilterSlot, kCompressorSlot, kReverbSlot});
    EXPECT_EQ(chainOf(program), (Chain{kRumbleFilterSlot, kCompressorSlot, kReverbSlot}));

    std::array<Tessitor::Corvel::SChainLink, kSlotCount> expected;
    expected.fill({kNoSlot, kNoSlot});
    expected[kInGainSlot] = {kNoSlot, kInMonoSlot};
    expected[kInMonoSlot] = {kInGainSlot, kRumbleFilterSlot};
    expected[kRumbleFilterSlot] = {kInMonoSlot, kCompressorSlot};
    expected[kCompressorSlot] = {kRumbleFilterSlot, kReverbSlot};
    expected[kReverbSlot] = {kCompressorSlot, kNoSlot};
    for (std::size_t slot = 0; slot < kSlotCount; ++slot)
        EXPECT_EQ(program.order[slot], expected[slot]) << slot;
}

TEST(Chain, SettingTheEmptyChainKeepsTheHead) {
    SProgram program{};
    setChain(program, {kPanSlot});
    setChain(program, {});
    EXPECT_EQ(chainOf(program), Chain{});
    EXPECT_EQ(program.order[kInMonoSlot].next, kNoSlot);
    EXPECT_EQ(program.order[kPanSlot].prev, kNoSlot);
}

TEST(Chain, AnEndlessOrInvalidListIsCut) {
    SProgram program{};
    setChain(program, {kRumbleFilterSlot, kCompressorSlot});
    program.order[kCompressorSlot].next = kRumbleFilterSlot;
    EXPECT_EQ(chainOf(program), (Chain{kRumbleFilterSlot, kCompressorSlot}));
    program.order[kCompressorSlot].next = 99;
    EXPECT_EQ(chainOf(program), (Chain{kRumbleFilterSlot, kCompressorSlot}));
    program.order[kCompressorSlot].next = kInGainSlot;
    EXPECT_EQ(chainOf(program), (Chain{kRumbleFilterSlot, kCompressorSlot}));
}
