#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

namespace Tessitor::Vst {

/// The parameters whose values wait until a window can show them. Nothing here locks or waits, and
/// only the constructor allocates. No value is kept: two threads that set a parameter at the same
/// time may report in the wrong order, so what to show is the present value of the effect.
class CPendingValues {
public:
    /// @param size  the ids are 0 to size - 1; all others are ignored.
    explicit CPendingValues(long size);
    CPendingValues(const CPendingValues &) = delete;
    CPendingValues &operator=(const CPendingValues &) = delete;

    /// [any thread] Call it after the effect has stored the value.
    void put(long id);

    /// Calls show(id) for each parameter that is waiting now, in order of the ids. It then waits no
    /// longer, even if the call throws. One that is put during this call may wait for the next; it
    /// is never lost. [one thread at a time]
    template <typename Show>
    void take(Show show);

private:
    static constexpr long idsPerWord = 64;

    /// @return true if the parameter was waiting. Its value may be read from now on: a later one
    ///         sets the bit again.
    bool clear(long id) {
        return (wordOf(id).fetch_and(~bitOf(id), std::memory_order_acquire) & bitOf(id)) != 0;
    }

    bool isInTable(long id) const { return id >= 0 && id < m_size; }
    std::atomic<std::uint64_t> &wordOf(long id) { return m_waiting[id / idsPerWord]; }
    static std::uint64_t bitOf(long id) { return std::uint64_t{1} << (id % idsPerWord); }

    long m_size;
    std::unique_ptr<std::atomic<std::uint64_t>[]> m_waiting;  // a bit per id
    static_assert(std::atomic<std::uint64_t>::is_always_lock_free);
};

// Definitions

template <typename Show>
void CPendingValues::take(Show show) {
    for (long first = 0; first < m_size; first += idsPerWord) {
        if (wordOf(first).load(std::memory_order_relaxed) == 0)
            continue;
        for (long id = first; id < m_size && id < first + idsPerWord; ++id)
            if (clear(id))
                show(id);
    }
}

}  // namespace Tessitor::Vst
