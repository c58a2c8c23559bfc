#include "platform/linux/windowing/window/CXcbTimers.h"

#include <algorithm>

bool CXcbTimers::start(int id, int milliseconds, Time now) {
    if (id < 1 || milliseconds < 1)
        return false;
    const std::chrono::milliseconds interval(milliseconds);
    m_timers[id] = {interval, now + interval};
    return true;
}

std::vector<int> CXcbTimers::getDue(Time now) const {
    std::vector<int> due;
    for (const auto &[id, timer] : m_timers)
        if (timer.due <= now)
            due.push_back(id);
    return due;
}

bool CXcbTimers::takeDue(int id, Time now) {
    const auto place = m_timers.find(id);
    if (place == m_timers.end() || place->second.due > now)
        return false;
    STimer &timer = place->second;
    timer.due += timer.interval;
    if (timer.due <= now)
        timer.due = now + timer.interval;
    return true;
}

int CXcbTimers::millisecondsToNext(Time now) const {
    if (m_timers.empty())
        return -1;
    Time next = Time::max();
    for (const auto &[id, timer] : m_timers)
        next = std::min(next, timer.due);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - now).count();
    return static_cast<int>(std::clamp<long long>(left, 0, 3'600'000));
}
