#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace Tessitor::Tool {

/// How far a command has got.
struct SProgress {
    double share = 0.0;                   // of the work, from 0 to 1
    std::size_t done = 0, jobs = 1;       // jobs
    std::optional<double> secondsLeft{};  // none if nobody knows yet
    std::string name{};                   // of a job under way; empty for none
};

/// @return a line for a terminal that many columns wide:
///         "[####----]  50%  1 of 2  0:07 left  voice.wav". If it is too narrow, the share
///         remains longest and the bar disappears first.
std::string progressLine(const SProgress &progress, std::size_t columns);

}  // namespace Tessitor::Tool
