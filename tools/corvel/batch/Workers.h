#pragma once

#include <cstddef>
#include <functional>

namespace Tessitor::Tool {

/// Calls job(0) to job(count - 1), as many at a time as there are processor cores, and returns when
/// all are done. They start in order. A job must not throw.
void runOnAllCores(std::size_t count, const std::function<void(std::size_t index)> &job);

}  // namespace Tessitor::Tool
