#include "corvel/batch/Workers.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace Tessitor::Tool {

void runInParallel(std::size_t count, std::optional<std::size_t> atATime,
                   const std::function<void(std::size_t index)> &job) {
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t index = next++; index < count; index = next++)
            job(index);
    };
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    const std::size_t threads = std::min(atATime.value_or(cores), count);
    std::vector<std::jthread> helpers;
    for (std::size_t i = 1; i < threads; ++i)
        helpers.emplace_back(work);
    work();
}

}  // namespace Tessitor::Tool
