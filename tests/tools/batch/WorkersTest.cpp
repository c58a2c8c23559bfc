#include "corvel/batch/Workers.h"

#include <algorithm>
#include <barrier>
#include <gtest/gtest.h>
#include <mutex>
#include <vector>

using Tessitor::Tool::runInParallel;

class WorkersCounts : public testing::TestWithParam<std::size_t> {};

TEST_P(WorkersCounts, EveryJobIsDoneOnce) {
    for (const std::optional<std::size_t> atATime :
         {std::optional<std::size_t>(), {1}, {3}, {256}}) {
        std::vector<int> done(GetParam(), 0);
        std::mutex lock;
        runInParallel(GetParam(), atATime, [&](std::size_t index) {
            const std::lock_guard guard(lock);
            ++done.at(index);
        });
        EXPECT_EQ(done, std::vector<int>(GetParam(), 1));
    }
}
INSTANTIATE_TEST_SUITE_P(Counts, WorkersCounts, testing::Values(0, 1, 2, 3, 100));

TEST(Workers, AsManyJobsRunAtATimeAsAskedFor) {
    std::barrier allRun(5);
    runInParallel(5, 5, [&](std::size_t) { allRun.arrive_and_wait(); });
}

TEST(Workers, OneAtATimeRunsInOrder) {
    std::vector<std::size_t> order;
    runInParallel(20, 1, [&](std::size_t index) { order.push_back(index); });
    EXPECT_EQ(order.size(), 20u);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}
