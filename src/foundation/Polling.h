#pragma once

namespace Tessitor::Threading {

constexpr long pollingStepMs = 5;

/// Repeats an attempt until it succeeds or the time is up. Only the pauses count as time.
/// @param milliseconds  above 0, so at least one attempt is made.
/// @param attempt       bool(): true ends the polling.
/// @param pause         void(): waits pollingStepMs.
/// @return true if an attempt succeeded.
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
