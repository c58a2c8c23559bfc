#include "toolkit/windowing/CPendingValues.h"

#include "Allocation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

namespace {

using Tessitor::Vst::CPendingValues;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using Values = std::vector<std::pair<long, double>>;

Values takeAll(CPendingValues &pending) {
    Values values;
    pending.take([&](long id, double value) { values.emplace_back(id, value); });
    return values;
}

TEST(CPendingValues, ReturnsEachValueOnce) {
    CPendingValues pending(200);
    pending.put(130, 0.25);
    pending.put(0, 1.0);
    pending.put(63, 0.5);
    pending.put(64, 0.75);
    EXPECT_THAT(takeAll(pending),
                ElementsAre(Pair(0, 1.0), Pair(63, 0.5), Pair(64, 0.75), Pair(130, 0.25)));
    EXPECT_THAT(takeAll(pending), IsEmpty());
}

TEST(CPendingValues, KeepsTheLastValueOfAParameter) {
    CPendingValues pending(64);
    pending.put(7, 0.25);
    pending.put(7, 0.0);
    EXPECT_THAT(takeAll(pending), ElementsAre(Pair(7, 0.0)));
}

TEST(CPendingValues, ForgetsWhatIsDiscarded) {
    CPendingValues pending(64);
    pending.put(7, 0.25);
    pending.put(8, 0.5);
    pending.discard(7);
    EXPECT_THAT(takeAll(pending), ElementsAre(Pair(8, 0.5)));
}

TEST(CPendingValues, IgnoresIdsOutsideTheTable) {
    CPendingValues pending(65), empty(0);
    for (const long id : {-1L, 65L, 127L}) {
        pending.put(id, 1.0);
        pending.discard(id);
        empty.put(id, 1.0);
    }
    EXPECT_THAT(takeAll(pending), IsEmpty());
    EXPECT_THAT(takeAll(empty), IsEmpty());
}

TEST(CPendingValues, KeepsWhatIsPutWhileItIsTaken) {
    CPendingValues pending(64);
    pending.put(1, 0.5);
    pending.take([&](long id, double) { pending.put(id, 0.75); });
    EXPECT_THAT(takeAll(pending), ElementsAre(Pair(1, 0.75)));
}

TEST(CPendingValues, LosesOnlyTheValueThatFails) {
    CPendingValues pending(64);
    pending.put(1, 0.25);
    pending.put(2, 0.5);
    EXPECT_THROW(pending.take([](long, double) { throw std::runtime_error("fails"); }),
                 std::runtime_error);
    EXPECT_THAT(takeAll(pending), ElementsAre(Pair(2, 0.5)));
}

TEST(CPendingValues, AllocatesNothingOnceItIsBuilt) {
    CPendingValues pending(64);
    const std::uint64_t before = allocationsOfThisThread();
    for (long id = 0; id < 64; ++id)
        pending.put(id, 0.5);
    pending.discard(5);
    pending.take([](long, double) {});
    EXPECT_EQ(allocationsOfThisThread(), before);
}

TEST(CPendingValues, LosesNoLastValueWhileOthersPut) {
    constexpr long ids = 100;
    constexpr int rounds = 20000;
    CPendingValues pending(ids);
    std::vector<double> shown(ids, -1.0);
    const auto takeInto = [&] {
        pending.take([&](long id, double value) { shown[static_cast<std::size_t>(id)] = value; });
    };
    const auto putOwn = [&](long first) {  // neighbours in a word belong to different threads
        for (int round = 1; round <= rounds; ++round)
            pending.put(first + 2 * (round % (ids / 2)), round);
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
        EXPECT_EQ(shown[static_cast<std::size_t>(id)], static_cast<double>(last)) << id;
    }
}

}  // namespace
