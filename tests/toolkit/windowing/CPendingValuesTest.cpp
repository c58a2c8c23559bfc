#include "toolkit/windowing/CPendingValues.h"

#include "Allocation.h"
#include "values/TRelaxed.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

using Tessitor::Vst::CPendingValues;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<long> takeAll(CPendingValues &pending) {
    std::vector<long> ids;
    pending.take([&](long id) { ids.push_back(id); });
    return ids;
}

TEST(CPendingValues, NamesEachParameterOnce) {
    CPendingValues pending(200);
    for (const long id : {130L, 0L, 63L, 64L, 0L})
        pending.put(id);
    EXPECT_THAT(takeAll(pending), ElementsAre(0, 63, 64, 130));
    EXPECT_THAT(takeAll(pending), IsEmpty());
}

TEST(CPendingValues, IgnoresIdsOutsideTheTable) {
    CPendingValues pending(65), empty(0);
    for (const long id : {-1L, 65L, 127L}) {
        pending.put(id);
        empty.put(id);
    }
    EXPECT_THAT(takeAll(pending), IsEmpty());
    EXPECT_THAT(takeAll(empty), IsEmpty());
}

TEST(CPendingValues, KeepsWhatIsPutWhileItIsTaken) {
    CPendingValues pending(64);
    pending.put(1);
    pending.take([&](long id) { pending.put(id); });
    EXPECT_THAT(takeAll(pending), ElementsAre(1));
}

TEST(CPendingValues, LosesOnlyTheParameterThatFails) {
    CPendingValues pending(64);
    pending.put(1);
    pending.put(2);
    EXPECT_THROW(pending.take([](long) { throw std::runtime_error("fails"); }), std::runtime_error);
    EXPECT_THAT(takeAll(pending), ElementsAre(2));
}

TEST(CPendingValues, AllocatesNothingOnceItIsBuilt) {
    CPendingValues pending(64);
    const std::uint64_t before = allocationsOfThisThread();
    for (long id = 0; id < 64; ++id)
        pending.put(id);
    pending.take([](long) {});
    EXPECT_EQ(allocationsOfThisThread(), before);
}

TEST(CPendingValues, LosesNoLastValueWhileOthersPut) {
    constexpr long ids = 100;
    constexpr int rounds = 20000;
    CPendingValues pending(ids);
    std::array<TRelaxed<int>, ids> values;  // of the effect
    std::array<int, ids> shown{};
    const auto takeInto = [&] {
        pending.take([&](long id) {
            shown[static_cast<std::size_t>(id)] = values[static_cast<std::size_t>(id)];
        });
    };
    const auto putOwn = [&](long first) {  // neighbours in a word belong to different threads
        for (int round = 1; round <= rounds; ++round) {
            const long id = first + 2 * (round % (ids / 2));
            values[static_cast<std::size_t>(id)] = round;
            pending.put(id);
        }
    };
    std::thread even(putOwn, 0), odd(putOwn, 1);
    for (int i = 0; i < rounds; ++i)
        takeInto();
    even.join();
    odd.join();
    takeInto();
    for (long id = 0; id < ids; ++id) {
        const long own = id / 2;
        const long last = rounds - (rounds - own) % (ids / 2);
        EXPECT_EQ(shown[static_cast<std::size_t>(id)], last) << id;
    }
}

}  // namespace
