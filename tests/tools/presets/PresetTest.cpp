#include "corvel/presets/Preset.h"

#include "tools/support/StoredPrograms.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

using namespace Tessitor::Tool;
using Tessitor::Corvel::SProgram;
using testing::HasSubstr;

namespace {

std::string faultOf(const SPreset &preset) {
    try {
        requireSound(preset);
    } catch (const CPresetError &error) {
        return error.what();
    }
    return "";
}

std::string faultOf(const SProgram &program) {
    return faultOf(SPreset{{program}, 0});
}

}  // namespace

TEST(Preset, EveryProgramOfTheEffectIsSound) {
    EXPECT_EQ(faultOf(SPreset{factoryPrograms(), 0}), "");
}

TEST(Preset, EveryChainThatCanBeEditedIsSound) {
    for (unsigned seed = 0; seed < 1000; ++seed)
        ASSERT_EQ(faultOf(randomProgram(seed)), "") << seed;
}

TEST(Preset, AValueIsFromZeroToOne) {
    SProgram program = factoryPrograms()[0];
    program.parameters[kCmpThresh] = 1.0f;
    EXPECT_EQ(faultOf(program), "");
    program.parameters[kCmpThresh] = 1.5f;
    EXPECT_EQ(faultOf(program), "parameter CmpThresh is 1.5, outside 0 to 1");
    program.parameters[kCmpThresh] = -0.25f;
    EXPECT_EQ(faultOf(program), "parameter CmpThresh is -0.25, outside 0 to 1");
    program.parameters[kCmpThresh] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(faultOf(program), "parameter CmpThresh is inf, outside 0 to 1");
    program.parameters[kCmpThresh] = std::nanf("");
    EXPECT_EQ(faultOf(program), "parameter CmpThresh is not a number");
    program.parameters[kCmpThresh] = 0.5f;
    program.parameters[kUnused63] = 2.0f;
    EXPECT_EQ(faultOf(program), "parameter Unused63 is 2, outside 0 to 1");
}

TEST(Preset, EveryLinkLeadsToASlot) {
    for (const std::int32_t slot : {-2, 18, 1000000, std::numeric_limits<std::int32_t>::min()}) {
        SProgram program = factoryPrograms()[0];
        program.order[kReverbSlot].next = slot;
        EXPECT_EQ(faultOf(program), "the chain links Reverb to slot " + std::to_string(slot) +
                                        "; there are slots 0 to 17");
        program = factoryPrograms()[0];
        program.order[kWarmerSlot].prev = slot;  // not in the chain
        EXPECT_THAT(faultOf(program), HasSubstr("links Warmer to slot "));
    }
}

TEST(Preset, AChainThatRunsInACircleIsNoChain) {
    SProgram program = factoryPrograms()[0];
    program.order[kReverbSlot].next = k3BandSlot;
    EXPECT_EQ(faultOf(program), "the chain runs in a circle through 3Band");
    program.order[kReverbSlot].next = kReverbSlot;
    EXPECT_EQ(faultOf(program), "the chain runs in a circle through Reverb");
    program.order[kReverbSlot].next = kInGainSlot;
    EXPECT_EQ(faultOf(program), "the chain runs in a circle through InGain");
}

TEST(Preset, AChainBeginsWithItsFixedHead) {
    SProgram program = factoryPrograms()[0];
    program.order[kInGainSlot].next = kRumbleFilterSlot;
    EXPECT_EQ(faultOf(program), "the chain does not begin with InGain and MonoType");
}

TEST(Preset, ANameIsTerminated) {
    SProgram program = factoryPrograms()[0];
    program.name.fill('x');
    EXPECT_EQ(faultOf(program), "the program's name is longer than 23 bytes");
    program.name.back() = '\0';
    EXPECT_EQ(faultOf(program), "");
}

TEST(Preset, AFaultInABankNamesTheProgram) {
    SPreset bank{factoryPrograms(), 0};
    bank.programs[7].parameters[0] = 7.0f;
    EXPECT_EQ(faultOf(bank), "program 7: parameter InGain is 7, outside 0 to 1");
}

TEST(Preset, NamesAreReadAsUtf8OrElseAsLatin1) {
    SProgram program{};
    program.name = {'K', '\xC3', '\xA4', 's', 'e', '\0', 'o', 'l', 'd'};
    EXPECT_EQ(nameOf(program), "K\xC3\xA4se");
    program.name = {'K', '\xE4', 's', 'e'};
    EXPECT_EQ(nameOf(program), "K\xC3\xA4se");
}
