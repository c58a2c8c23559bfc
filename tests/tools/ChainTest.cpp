#include "corvel/Chain.h"

#include "corvel/Errors.h"
#include "dspclasses/strip/CDSPMultiFX.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;
using Tessitor::Corvel::SProgram;

TEST(Chain, LabelsAreThoseOfTheStrip) {
    CDSPMultiFX strip;
    for (int slot = 2; slot < 18; ++slot) {
        char label[64];
        strip.getFXName(slot, label);
        EXPECT_EQ(moduleLabel(slot), label);
        EXPECT_EQ(chainFromText(label), Chain{slot});
    }
}

TEST(Chain, TextIsReadInOrderAndInAnyCapitals) {
    EXPECT_EQ(chainFromText("rumble filter, COMPRESSOR ,3Band,reverb"), (Chain{6, 11, 5, 17}));
}

TEST(Chain, NothingAndNoneAreTheEmptyChain) {
    EXPECT_EQ(chainFromText(""), Chain{});
    EXPECT_EQ(chainFromText("  "), Chain{});
    EXPECT_EQ(chainFromText("None"), Chain{});
}

TEST(Chain, AllSixteenModulesMayStandInIt) {
    Chain all;
    std::string text;
    for (int slot = 17; slot >= 2; --slot) {
        all.push_back(slot);
        text.append(text.empty() ? "" : ",").append(moduleLabel(slot));
    }
    EXPECT_EQ(chainFromText(text), all);
}

TEST(Chain, UnknownFixedAndRepeatedModulesAreRefused) {
    for (const char *text : {"Flanger", "InGain", "MonoType", "Gate,Gate", "Gate,,Pan", "Gate,"})
        EXPECT_THROW(chainFromText(text), CCallError) << text;
}

TEST(Chain, WhatIsSetIsFoundAndLinkedBothWays) {
    SProgram program{};
    setChain(program, {6, 11, 17});
    EXPECT_EQ(chainOf(program), (Chain{6, 11, 17}));

    const Tessitor::Corvel::SChainLink expected[18] = {
        {-1, 1},  {0, 6},   {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {1, 11},  {-1, -1}, {-1, -1},
        {-1, -1}, {-1, -1}, {6, 17},  {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {11, -1}};
    for (std::size_t slot = 0; slot < 18; ++slot)
        EXPECT_EQ(program.order[slot], expected[slot]) << slot;
}

TEST(Chain, SettingTheEmptyChainLeavesTheHead) {
    SProgram program{};
    setChain(program, {3});
    setChain(program, {});
    EXPECT_EQ(chainOf(program), Chain{});
    EXPECT_EQ(program.order[1].next, -1);
    EXPECT_EQ(program.order[3].prev, -1);
}

TEST(Chain, AnEndlessOrWildListIsCut) {
    SProgram program{};
    setChain(program, {6, 11});
    program.order[11].next = 6;
    EXPECT_EQ(chainOf(program), (Chain{6, 11}));
    program.order[11].next = 99;
    EXPECT_EQ(chainOf(program), (Chain{6, 11}));
    program.order[11].next = 0;
    EXPECT_EQ(chainOf(program), (Chain{6, 11}));
}
