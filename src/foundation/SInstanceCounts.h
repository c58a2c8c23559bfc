#pragma once

#include <atomic>
#include <cstdint>

namespace Tessitor::Basics {

/// How many instances a class has, and how many it ever had. Below zero the counts wrap. [any
/// thread]
struct SInstanceCounts {
    std::atomic<std::uint32_t> instances = 0;  // live now
    std::atomic<std::uint32_t> total = 0;      // ever constructed

    void increment() {
        instances.fetch_add(1, std::memory_order_relaxed);
        total.fetch_add(1, std::memory_order_relaxed);
    }
    void decrement() { instances.fetch_sub(1, std::memory_order_relaxed); }
};

}  // namespace Tessitor::Basics
