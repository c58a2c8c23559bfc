#pragma once

#include <chrono>
#include <map>
#include <vector>

/// The timers of a window: X has none. [gui thread]
class CXcbTimers {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// @param id  if it runs, it starts anew.
    /// @return true if the timer runs, false if id or milliseconds is below 1.
    bool start(int id, int milliseconds, Time now);
    void stop(int id) { m_timers.erase(id); }
    void stopAll() { m_timers.clear(); }

    /// @return the timers that are due, each to be taken before its report.
    std::vector<int> getDue(Time now) const;
    /// Sets the time of the next report. A timer that is late skips those that it missed.
    /// @return false if the timer is not due: an earlier report has stopped or started it.
    bool takeDue(int id, Time now);
    /// @return until the next timer is due, 0 if it is late; -1 if there is none.
    int millisecondsToNext(Time now) const;

private:
    struct STimer {
        std::chrono::milliseconds interval;
        Time due;
    };

    std::map<int, STimer> m_timers;
};
