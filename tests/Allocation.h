#pragma once

#include <cstdint>

// For programs that link Allocation.cpp, which replaces the global operators new and delete.

/// @return how often this thread has called operator new, in any of its forms.
std::uint64_t allocationsOfThisThread();

/// During its lifetime, makes allocations of this thread fail.
class CFailingAllocation {
public:
    /// @param index     which allocation is the first to throw std::bad_alloc; 0 is the next one.
    /// @param failures  how many fail from then on.
    explicit CFailingAllocation(std::int64_t index, std::int64_t failures = 1);
    ~CFailingAllocation();
    CFailingAllocation(const CFailingAllocation &) = delete;
    CFailingAllocation &operator=(const CFailingAllocation &) = delete;
};
