#include "corvel/batch/Workers.h"

#include <gtest/gtest.h>
#include <mutex>
#include <vector>

using Tessitor::Tool::runOnAllCores;

class WorkersCounts : public testing::TestWithParam<std::size_t> {};

TEST_P(WorkersCounts, EveryJobIsDoneOnce) {
    std::vector<int> done(GetParam(), 0);
    std::mutex lock;
    runOnAllCores(GetParam(), [&](std::size_t index) {
        const std::lock_guard guard(lock);
        ++done.at(index);
    });
    EXPECT_EQ(done, std::vector<int>(GetParam(), 1));
}
INSTANTIATE_TEST_SUITE_P(Counts, WorkersCounts, testing::Values(0, 1, 2, 3, 100));
