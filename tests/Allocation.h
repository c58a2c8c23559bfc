#pragma once

#include <cstdint>

// For programs that link Allocation.cpp, which replaces the global operators new and delete.

/// @return how often this thread has called operator new, in any of its forms.
std::uint64_t allocationsOfThisThread();

/// Makes one allocation of this thread fail while it lives.
class CFailingAllocation {
public:
    /// @param index  of the allocation that throws std::bad_alloc, 0 for the next one.
    explicit CFailingAllocation(std::int64_t index);
    ~CFailingAllocation();
    CFailingAllocation(const CFailingAllocation &) = delete;
    CFailingAllocation &operator=(const CFailingAllocation &) = delete;
};
