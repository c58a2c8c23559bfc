#pragma once

#include <cstdint>

// For programs that link Allocation.cpp, which replaces the global operators new and delete.

/// @return how often this thread has called operator new, in any of its forms.
std::uint64_t allocationsOfThisThread();

/// Makes allocations of this thread fail while it lives.
class CFailingAllocation {
public:
    /// @param index     of the first allocation that throws std::bad_alloc, 0 for the next one.
    /// @param failures  how many fail from there on.
    explicit CFailingAllocation(std::int64_t index, std::int64_t failures = 1);
    ~CFailingAllocation();
    CFailingAllocation(const CFailingAllocation &) = delete;
    CFailingAllocation &operator=(const CFailingAllocation &) = delete;
};
