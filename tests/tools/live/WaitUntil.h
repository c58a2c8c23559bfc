#pragma once

#include <chrono>
#include <functional>
#include <thread>

/// @return false if the condition is not met within twenty seconds.
inline bool waitUntil(const std::function<bool()> &isMet) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!isMet()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}
