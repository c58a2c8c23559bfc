#pragma once

#include <cstddef>
#include <functional>
#include <optional>

namespace Tessitor::Tool {

/// Calls job(0) to job(count - 1), several at a time, and returns when all are done. They start in
/// order. A job must not throw.
/// @param atATime  by default the number of processor cores that this program may use.
void runInParallel(std::size_t count, std::optional<std::size_t> atATime,
                   const std::function<void(std::size_t index)> &job);

}  // namespace Tessitor::Tool
