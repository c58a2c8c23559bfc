#include "dspclasses/strip/CChainOrder.h"

#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using Links = std::pair<int, int>;

static Links linksOf(CChainOrder &order, int slot) {
    return {order.entry(slot).prev, order.entry(slot).next};
}

static const Links freeSlot{kNoSlot, kNoSlot};

/// The slots after the fixed head, in the order in which a run visits them.
static std::vector<int> chainOf(CChainOrder &order) {
    std::vector<int> chain;
    for (int slot = order.nextOf(kInMonoSlot); slot != kNoSlot && chain.size() < 30;
         slot = order.nextOf(slot))
        chain.push_back(slot);
    return chain;
}

class CChainOrderTest : public testing::Test {
protected:
    void append(std::initializer_list<int> slots) {
        for (const int slot : slots)
            order.append(slot);
    }

    CChainOrder order;
};

TEST_F(CChainOrderTest, StartsWithOnlyTheFixedHead) {
    EXPECT_EQ(linksOf(order, kInGainSlot), Links(kNoSlot, kInMonoSlot));
    EXPECT_EQ(linksOf(order, kInMonoSlot), Links(kInGainSlot, kNoSlot));
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot)
        EXPECT_EQ(linksOf(order, slot), freeSlot) << slot;
    EXPECT_EQ(order.getCount(), 0);
}

TEST_F(CChainOrderTest, ReturnsToTheEmptyChain) {
    append({k3BandSlot, kParametricSlot});
    order.initialise();
    EXPECT_TRUE(chainOf(order).empty());
    EXPECT_EQ(linksOf(order, k3BandSlot), freeSlot);
    EXPECT_EQ(linksOf(order, kParametricSlot), freeSlot);
    EXPECT_EQ(order.getCount(), 0);
}

TEST_F(CChainOrderTest, AppendsAtTheEnd) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kCompressorSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, kInMonoSlot), Links(kInGainSlot, kRumbleFilterSlot));
    EXPECT_EQ(linksOf(order, kRumbleFilterSlot), Links(kInMonoSlot, kCompressorSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(kRumbleFilterSlot, k3BandSlot));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(kCompressorSlot, kNoSlot));
    EXPECT_EQ(order.getCount(), 3);
}

TEST_F(CChainOrderTest, InsertsBeforeATarget) {
    append({kRumbleFilterSlot, kCompressorSlot});
    order.insertBefore(kCompressorSlot, kGainSlot);
    order.insertBefore(kRumbleFilterSlot, kReverbSlot);
    EXPECT_EQ(chainOf(order),
              (std::vector<int>{kReverbSlot, kRumbleFilterSlot, kGainSlot, kCompressorSlot}));
    EXPECT_EQ(linksOf(order, kGainSlot), Links(kRumbleFilterSlot, kCompressorSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(kGainSlot, kNoSlot));
    EXPECT_EQ(linksOf(order, kReverbSlot), Links(kInMonoSlot, kRumbleFilterSlot));
    EXPECT_EQ(order.getCount(), 4);
}

TEST_F(CChainOrderTest, InsertsAfterATargetThatIsNotTheLast) {
    append({kRumbleFilterSlot, kCompressorSlot});
    order.insertAfter(kRumbleFilterSlot, kGainSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kGainSlot, kCompressorSlot}));
    EXPECT_EQ(linksOf(order, kGainSlot), Links(kRumbleFilterSlot, kCompressorSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(kGainSlot, kNoSlot));
    EXPECT_EQ(order.getCount(), 3);
}

TEST_F(CChainOrderTest, RemovesFromTheMiddle) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.remove(kCompressorSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(kRumbleFilterSlot, kNoSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), freeSlot);
    EXPECT_EQ(order.getCount(), 2);
}

TEST_F(CChainOrderTest, EndsAtThePredecessorWhenTheLastModuleIsRemoved) {
    append({kRumbleFilterSlot, kCompressorSlot});
    order.remove(kCompressorSlot);
    EXPECT_EQ(linksOf(order, kRumbleFilterSlot), Links(kInMonoSlot, kNoSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), freeSlot);
    EXPECT_EQ(order.getCount(), 1);
}

TEST_F(CChainOrderTest, MovesInBothDirections) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.moveBefore(kRumbleFilterSlot, k3BandSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{k3BandSlot, kRumbleFilterSlot, kCompressorSlot}));
    order.moveBefore(kCompressorSlot, k3BandSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, k3BandSlot, kCompressorSlot}));
    EXPECT_EQ(linksOf(order, kRumbleFilterSlot), Links(kInMonoSlot, k3BandSlot));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(kRumbleFilterSlot, kCompressorSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(k3BandSlot, kNoSlot));
    EXPECT_EQ(order.getCount(), 3);
}

TEST_F(CChainOrderTest, StaysTheSameWhenASlotMovesBeforeItsSuccessor) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.moveBefore(k3BandSlot, kCompressorSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kCompressorSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(kCompressorSlot, kNoSlot));
    EXPECT_EQ(order.getCount(), 3);
}

TEST_F(CChainOrderTest, LeavesStaleLinksInSuccessorAndTargetAfterReplace) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.replace(kCompressorSlot, kPresenceSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kPresenceSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, kPresenceSlot), Links(kRumbleFilterSlot, k3BandSlot));
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(kNoSlot, k3BandSlot));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(kCompressorSlot, kNoSlot));
    EXPECT_EQ(order.getCount(), 3);
}

TEST_F(CChainOrderTest, KeepsRunningTheRemovedSuccessorOfAReplacement) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kHiPassSlot});
    order.replace(kCompressorSlot, kPresenceSlot);
    order.remove(k3BandSlot);
    // The removed slot is marked free and no longer counted, but it still runs, and the slots after
    // it are lost.
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kPresenceSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, k3BandSlot), freeSlot);
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(kNoSlot, kHiPassSlot));
    EXPECT_EQ(linksOf(order, kHiPassSlot), Links(kCompressorSlot, kNoSlot));
    EXPECT_EQ(order.getCount(), 3);
}

TEST_F(CChainOrderTest, CountsLinksThatWereWrittenDirectly) {
    order.entry(kInMonoSlot).next = kParametricSlot;
    order.entry(kParametricSlot) = {kInMonoSlot, kGainSlot};
    order.entry(kGainSlot) = {kParametricSlot, kNoSlot};
    EXPECT_EQ(order.getCount(), 0);
    order.recount();
    EXPECT_EQ(order.getCount(), 2);
}

TEST_F(CChainOrderTest, CountsAllSixteenModules) {
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot)
        order.append(slot);
    order.recount();
    EXPECT_EQ(order.getCount(), 16);
}

TEST_F(CChainOrderTest, CountsACycleAsZero) {
    append({kRumbleFilterSlot, kCompressorSlot});
    order.entry(kCompressorSlot).next = kRumbleFilterSlot;
    order.recount();
    EXPECT_EQ(order.getCount(), 0);
}

/// Compares every edit with a std::vector. No replacements, since they leave stale links.
TEST_F(CChainOrderTest, MatchesAVectorThroughRandomEdits) {
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        CRandom random(seed);
        order.initialise();
        std::vector<int> expected;
        for (int edit = 0; edit < 200; ++edit) {
            const int slot = random.whole(kFirstModuleSlot, kLastModuleSlot);
            const auto found = std::find(expected.begin(), expected.end(), slot);
            const int other = expected.empty() ? kNoSlot
                                               : expected[static_cast<std::size_t>(random.whole(
                                                     0, static_cast<int>(expected.size()) - 1))];
            if (found == expected.end()) {
                if (other == kNoSlot || random.chance(0.5)) {
                    order.append(slot);
                    expected.push_back(slot);
                } else {
                    order.insertBefore(other, slot);
                    expected.insert(std::find(expected.begin(), expected.end(), other), slot);
                }
            } else {
                const bool move = slot != other && random.chance(0.5);
                expected.erase(found);
                if (move) {
                    order.moveBefore(other, slot);
                    expected.insert(std::find(expected.begin(), expected.end(), other), slot);
                } else {
                    order.remove(slot);
                }
            }
            ASSERT_EQ(chainOf(order), expected) << "edit " << edit;
            ASSERT_EQ(order.getCount(), static_cast<int>(expected.size())) << "edit " << edit;
            int before = kInMonoSlot;
            for (const int present : expected) {
                ASSERT_EQ(order.entry(present).prev, before) << "edit " << edit;
                before = present;
            }
        }
    }
}

TEST_F(CChainOrderTest, AppendsASlotToItselfIfItRunsButIsMarkedFree) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.replace(kCompressorSlot, kPresenceSlot);
    order.remove(k3BandSlot);  // marked free, but still runs
    order.append(k3BandSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kPresenceSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(k3BandSlot, kNoSlot));
}

TEST_F(CChainOrderTest, RemovesAndInsertsBeforeASlotWithoutAPredecessor) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.replace(kCompressorSlot, kPresenceSlot);
    order.remove(k3BandSlot);
    order.remove(k3BandSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kPresenceSlot, k3BandSlot}));
    order.insertBefore(k3BandSlot, kParametricSlot);
    EXPECT_EQ(chainOf(order), (std::vector<int>{kRumbleFilterSlot, kPresenceSlot, k3BandSlot}));
    EXPECT_EQ(linksOf(order, kParametricSlot), Links(kNoSlot, k3BandSlot));
    EXPECT_EQ(linksOf(order, k3BandSlot), Links(kParametricSlot, kNoSlot));
}

TEST_F(CChainOrderTest, AppendsAReplacedSlotAgain) {
    append({kRumbleFilterSlot, kCompressorSlot, k3BandSlot});
    order.replace(kCompressorSlot, kPresenceSlot);
    order.append(kCompressorSlot);
    EXPECT_EQ(chainOf(order),
              (std::vector<int>{kRumbleFilterSlot, kPresenceSlot, k3BandSlot, kCompressorSlot}));
    EXPECT_EQ(linksOf(order, kCompressorSlot), Links(k3BandSlot, kNoSlot));
}
