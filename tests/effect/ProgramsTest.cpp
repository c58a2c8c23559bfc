#include "dspclasses/support/Signals.h"
#include "effect/CCorvel.h"
#include "effect/FactoryPrograms.h"
#include "hostlayer/FakeHost.h"

#include <array>
#include <bit>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Tessitor::Corvel;

namespace {

class Programs : public testing::Test {
protected:
    FakeHost host;
    CCorvel effect{FakeHost::callback};

    static std::vector<int> chainOf(CCorvel &of) {
        std::vector<int> chain;
        for (int slot = of.getStrip().orderEntry(kInMonoSlot).next; slot != kNoSlot;
             slot = of.getStrip().orderEntry(slot).next)
            chain.push_back(slot);
        return chain;
    }

    static std::string nameOf(CCorvel &of) {
        char name[24] = {};
        of.getProgramName(name);
        return name;
    }

    static std::vector<char> chunkOf(CCorvel &of, bool isPreset) {
        void *data = nullptr;
        const int size = of.getChunk(&data, isPreset);
        const char *bytes = static_cast<const char *>(data);
        return {bytes, bytes + size};
    }

    static int load(CCorvel &into, std::vector<char> chunk, bool isPreset) {
        return into.setChunk(chunk.data(), static_cast<int>(chunk.size()), isPreset);
    }

    static SProgram asProgram(const std::vector<char> &chunk, std::size_t index = 0) {
        std::array<char, sizeof(SProgram)> bytes;
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = chunk.at(index * sizeof(SProgram) + i);
        return std::bit_cast<SProgram>(bytes);
    }

    static std::vector<char> asChunk(const SProgram &program) {
        const char *bytes = reinterpret_cast<const char *>(&program);
        return {bytes, bytes + sizeof program};
    }
};

void rename(CCorvel &effect, std::string name) {
    effect.setProgramName(name.data());
}

}  // namespace

TEST_F(Programs, EqualTheFactoryProgramsInANewEffect) {
    const std::vector<char> bank = chunkOf(effect, false);
    ASSERT_EQ(bank.size(), 8480u);
    EXPECT_EQ(std::memcmp(bank.data(), factoryPrograms.data(), bank.size()), 0);
}

TEST_F(Programs, SetTheirValuesAndTheirChain) {
    for (int program = 19; program >= 0; --program) {
        effect.setProgram(program);
        const SProgram &factory = factoryPrograms[std::size_t(program)];
        EXPECT_EQ(effect.getProgram(), program);
        EXPECT_EQ(nameOf(effect), factory.name.data());
        for (int id = 0; id < kParameterCount; ++id)
            EXPECT_EQ(effect.getParameter(id), factory.parameters[std::size_t(id)])
                << program << ", " << id;
        for (int slot = 0; slot < kSlotCount; ++slot) {
            EXPECT_EQ(effect.getStrip().orderEntry(slot).prev,
                      factory.order[std::size_t(slot)].prev);
            EXPECT_EQ(effect.getStrip().orderEntry(slot).next,
                      factory.order[std::size_t(slot)].next);
        }
        EXPECT_EQ(effect.getStrip().getFXCount(), static_cast<int>(chainOf(effect).size()));
    }
}

TEST_F(Programs, KeepEditsWhenAnotherProgramIsChosen) {
    effect.setProgram(3);
    effect.setParameter(kCmpThresh, 0.123f);
    effect.getStrip().appendFX(kWarmerSlot);
    effect.setProgram(7);
    EXPECT_EQ(effect.getParameter(kCmpThresh), factoryPrograms[7].parameters[kCmpThresh]);
    effect.setProgram(3);
    EXPECT_EQ(effect.getParameter(kCmpThresh), 0.123f);
    EXPECT_EQ(chainOf(effect), (std::vector<int>{kHiPassSlot, kCompressorSlot, kModulator1Slot,
                                                 kDelaySlot, kReverbSlot, kWarmerSlot}));
}

TEST_F(Programs, KeepEditsWhenTheCurrentProgramIsChosenAgain) {
    void *record = nullptr;
    effect.getChunk(&record, true);
    const auto *stored = static_cast<const SProgram *>(record);
    effect.setParameter(kCmpThresh, 0.123f);
    EXPECT_NE(stored->parameters[kCmpThresh], 0.123f);
    effect.setProgram(0);
    EXPECT_EQ(stored->parameters[kCmpThresh], 0.123f);
    EXPECT_EQ(effect.getParameter(kCmpThresh), 0.123f);
}

TEST_F(Programs, ReturnTheirNamesByIndex) {
    char name[24] = "untouched";
    EXPECT_TRUE(effect.getProgramNameIndexed(0, 19, name));
    EXPECT_STREQ(name, "Empty");
    EXPECT_TRUE(effect.getProgramNameIndexed(-1, 0, name));
    EXPECT_STREQ(name, "Lead Vocal");
    for (int index : {20, 21, -1, -20}) {
        EXPECT_FALSE(effect.getProgramNameIndexed(0, index, name)) << index;
        EXPECT_STREQ(name, "Lead Vocal");
    }
}

TEST_F(Programs, KeepTheBytesAfterAShorterNewName) {
    effect.setProgram(6);  // "Bad Mic Correction"
    rename(effect, "Mine");
    EXPECT_EQ(nameOf(effect), "Mine");
    const SProgram record = asProgram(chunkOf(effect, true));
    EXPECT_EQ(std::string(record.name.data(), 24),
              std::string("Mine\0ic Correction\0\0\0\0\0\0", 24));
    EXPECT_STREQ(asProgram(chunkOf(effect, false), 5).name.data(), "Pop Vocal");
}

TEST_F(Programs, CutANameToFitItsRecord) {
    rename(effect, std::string(40, 'n'));
    EXPECT_EQ(nameOf(effect), std::string(23, 'n'));
    EXPECT_STREQ(asProgram(chunkOf(effect, false), 1).name.data(), "Male Vocal");

    SProgram unterminated = factoryPrograms[2];
    unterminated.name.fill('u');
    load(effect, asChunk(unterminated), true);
    EXPECT_EQ(nameOf(effect), std::string(23, 'u'));
}

TEST_F(Programs, SurviveSavingAndLoadingABank) {
    effect.setParameter(kHPFreq, 0.777f);
    effect.getStrip().removeFX(kCompressorSlot);
    effect.setProgram(4);
    rename(effect, "Ballad of mine");
    effect.setProgram(0);
    const std::vector<char> bank = chunkOf(effect, false);

    CCorvel fresh(FakeHost::callback);
    EXPECT_EQ(load(fresh, bank, false), 8480);
    EXPECT_EQ(chunkOf(fresh, false), bank);
    EXPECT_EQ(fresh.getParameter(kHPFreq), 0.777f);
    EXPECT_EQ(chainOf(fresh), (std::vector<int>{kRumbleFilterSlot, k3BandSlot, kReverbSlot}));
    EXPECT_EQ(fresh.getStrip().getFXCount(), 3);
    fresh.setProgram(4);
    EXPECT_EQ(nameOf(fresh), "Ballad of mine");
}

TEST_F(Programs, AreLoadedOneAtATimeIntoTheCurrentRecord) {
    effect.setProgram(5);
    const std::vector<char> chunk = chunkOf(effect, true);
    ASSERT_EQ(chunk.size(), 424u);
    effect.setProgram(2);
    EXPECT_EQ(load(effect, chunk, true), 424);
    EXPECT_EQ(effect.getProgram(), 2);
    EXPECT_EQ(nameOf(effect), "Pop Vocal");
    EXPECT_EQ(chainOf(effect), (std::vector<int>{kHiPassSlot, kCompressorSlot, kPresenceSlot,
                                                 kModulator1Slot, kDelaySlot, kReverbSlot}));
    EXPECT_EQ(effect.getParameter(kCmpMakUp), 0.775f);
    effect.setProgram(1);
    EXPECT_EQ(asProgram(chunkOf(effect, false), 2), factoryPrograms[5]);
}

TEST_F(Programs, PlayTheFirstAfterABankIsLoaded) {
    const std::vector<char> bank = chunkOf(effect, false);
    effect.setProgram(9);
    load(effect, bank, false);
    EXPECT_EQ(effect.getProgram(), 9);
    EXPECT_EQ(chainOf(effect),
              (std::vector<int>{kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kReverbSlot}));
    EXPECT_EQ(effect.getParameter(kCmpThresh), factoryPrograms[0].parameters[kCmpThresh]);
    EXPECT_EQ(nameOf(effect), "Pop Chorus (Insert)");

    // The next save writes that state into the current record, which keeps its name.
    const SProgram ninth = asProgram(chunkOf(effect, false), 9);
    EXPECT_EQ(ninth.parameters, factoryPrograms[0].parameters);
    EXPECT_EQ(ninth.order, factoryPrograms[0].order);
    EXPECT_STREQ(ninth.name.data(), "Pop Chorus (Insert)");
}

TEST_F(Programs, AreLoadedWhateverLengthTheHostClaims) {
    std::vector<char> chunk = asChunk(factoryPrograms[14]);
    EXPECT_EQ(effect.setChunk(chunk.data(), 0, true), 424);
    EXPECT_EQ(nameOf(effect), "Concert Hall (Send)");
}

TEST_F(Programs, AreSavedFromTheEffectsOwnMemory) {
    void *bank = nullptr, *preset = nullptr;
    effect.setProgram(3);
    effect.getChunk(&bank, false);
    effect.getChunk(&preset, true);
    EXPECT_EQ(static_cast<char *>(preset) - static_cast<char *>(bank), 3 * 424);
    void *again = nullptr;
    effect.getChunk(&again, false);
    EXPECT_EQ(again, bank);
}

TEST_F(Programs, MayBeLoadedFromTheEffectsOwnMemory) {
    void *bank = nullptr;
    const int size = effect.getChunk(&bank, false);
    const std::vector<char> before = chunkOf(effect, false);
    EXPECT_EQ(effect.setChunk(bank, size, false), size);
    EXPECT_EQ(chunkOf(effect, false), before);
}

TEST_F(Programs, KeepTheStateOfModulesThatTheyAddOrRemove) {
    CCorvel steady(FakeHost::callback);
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 13, 2000);
    EXPECT_EQ(render(effect, voice, 500), render(steady, voice, 500));
    SProgram bare = factoryPrograms[0];
    bare.order = factoryPrograms[19].order;
    load(effect, asChunk(bare), true);
    load(effect, asChunk(factoryPrograms[0]), true);
    EXPECT_EQ(render(effect, voice, 500), render(steady, voice, 500));
}

TEST_F(Programs, MayContainMoreThanSixModules) {
    SProgram all = factoryPrograms[19];
    for (int slot = kInMonoSlot; slot <= kLastModuleSlot; ++slot)
        all.order[std::size_t(slot)] = {slot - 1, slot < kLastModuleSlot ? slot + 1 : kNoSlot};
    load(effect, asChunk(all), true);
    EXPECT_EQ(effect.getStrip().getFXCount(), 16);
    EXPECT_EQ(chainOf(effect).size(), 16u);
}

TEST_F(Programs, CountNoModulesIfTheChainIsACycle) {
    SProgram cycle = factoryPrograms[0];
    cycle.order[kReverbSlot].next = kRumbleFilterSlot;
    load(effect, asChunk(cycle), true);
    EXPECT_EQ(effect.getStrip().getFXCount(), 0);
}
