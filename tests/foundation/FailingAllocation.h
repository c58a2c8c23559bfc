#pragma once

/// Makes one allocation of this thread fail while it lives; the program's operator new asks it.
class CFailingAllocation {
public:
    /// @param index  of the allocation that throws std::bad_alloc, 0 for the next one.
    explicit CFailingAllocation(int index);
    CFailingAllocation(const CFailingAllocation &) = delete;
    CFailingAllocation &operator=(const CFailingAllocation &) = delete;
    ~CFailingAllocation();
};
