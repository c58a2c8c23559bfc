#include "effect/FactoryPrograms.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

using namespace Tessitor::Corvel;

namespace {

std::vector<int> chainOf(const SProgram &program) {
    std::vector<int> chain;
    for (int slot = program.order[kInMonoSlot].next; slot != kNoSlot;
         slot = program.order[std::size_t(slot)].next)
        chain.push_back(slot);
    return chain;
}

std::uint64_t hashOf(const void *data, std::size_t size) {
    std::uint64_t hash = 0xcbf29ce484222325u;  // FNV-1a
    for (std::size_t i = 0; i < size; ++i)
        hash = (hash ^ static_cast<const unsigned char *>(data)[i]) * 0x100000001b3u;
    return hash;
}

}  // namespace

TEST(FactoryPrograms, HaveTwentyDifferentNames) {
    std::set<std::string> names;
    for (const SProgram &program : factoryPrograms)
        names.insert(program.name.data());
    EXPECT_EQ(names.size(), 20u);
    EXPECT_STREQ(factoryPrograms[0].name.data(), "Lead Vocal");
    EXPECT_STREQ(factoryPrograms[19].name.data(), "Empty");
}

TEST(FactoryPrograms, HoldNormalisedValues) {
    for (const SProgram &program : factoryPrograms)
        for (float value : program.parameters) {
            EXPECT_GE(value, 0.0f) << program.name.data();
            EXPECT_LE(value, 1.0f) << program.name.data();
        }
}

TEST(FactoryPrograms, LinkEachChainInBothDirections) {
    for (const SProgram &program : factoryPrograms) {
        SCOPED_TRACE(program.name.data());
        EXPECT_EQ(program.order[kInGainSlot], (SChainLink{kNoSlot, kInMonoSlot}));
        EXPECT_EQ(program.order[kInMonoSlot].prev, kInGainSlot);

        const std::vector<int> chain = chainOf(program);
        EXPECT_LE(chain.size(), 6u);
        int before = kInMonoSlot;
        for (int slot : chain) {
            EXPECT_EQ(program.order[std::size_t(slot)].prev, before);
            before = slot;
        }

        const std::set<int> inside(chain.begin(), chain.end());
        EXPECT_EQ(inside.size(), chain.size());
        for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot) {
            if (inside.contains(slot))
                continue;
            EXPECT_EQ(program.order[std::size_t(slot)], (SChainLink{kNoSlot, kNoSlot})) << slot;
        }
    }
}

TEST(FactoryPrograms, RunTheirModulesInTheIntendedOrder) {
    EXPECT_EQ(chainOf(factoryPrograms[0]),
              (std::vector<int>{kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kReverbSlot}));
    EXPECT_EQ(chainOf(factoryPrograms[5]),
              (std::vector<int>{kHiPassSlot, kCompressorSlot, kPresenceSlot, kModulator1Slot,
                                kDelaySlot, kReverbSlot}));
    EXPECT_EQ(chainOf(factoryPrograms[15]), (std::vector<int>{kReverbSlot, kGateSlot}));
    EXPECT_TRUE(chainOf(factoryPrograms[19]).empty());
}

// Changing any byte of a factory program changes the sound. If that is intended, update the hash.
TEST(FactoryPrograms, HaveNotChangedByAByte) {
    EXPECT_EQ(hashOf(factoryPrograms.data(), sizeof(factoryPrograms)), 10616505895466707279u);
}
