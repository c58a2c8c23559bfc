#pragma once

#include <cstdint>

namespace Tessitor::Basics {

/// How many instances a class has, and how many it ever had. The counts are plain integers: below
/// zero they wrap, and two threads that count at once race.
struct SInstanceCounts {
    std::uint32_t instances = 0;  // live now
    std::uint32_t total = 0;      // ever constructed

    constexpr void increment() {
        ++instances;
        ++total;
    }
    constexpr void decrement() { --instances; }
};

}  // namespace Tessitor::Basics
