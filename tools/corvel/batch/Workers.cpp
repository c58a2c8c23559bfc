#include "corvel/batch/Workers.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace Tessitor::Tool {

void runOnAllCores(std::size_t count, const std::function<void(std::size_t index)> &job) {
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t index = next++; index < count; index = next++)
            job(index);
    };
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    std::vector<std::jthread> helpers;
    for (std::size_t i = 1; i < std::min(cores, count); ++i)
        helpers.emplace_back(work);
    work();
}

}  // namespace Tessitor::Tool
