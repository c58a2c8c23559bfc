#pragma once

namespace Tessitor::Threading {

constexpr long pollingStepMs = 5;

/// Tries until an attempt succeeds or the time is used up, which counts the pauses only.
/// @param milliseconds  above 0; the first attempt is made in any case.
/// @param attempt  bool(): true ends the polling.
/// @param pause  void(): waits for one step.
template <typename Attempt, typename Pause>
bool pollUntil(long milliseconds, Attempt attempt, Pause pause) {
    for (long remaining = milliseconds; remaining > 0; remaining -= pollingStepMs) {
        if (attempt())
            return true;
        pause();
    }
    return false;
}

}  // namespace Tessitor::Threading
