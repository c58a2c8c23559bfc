#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace Tessitor::Tool {

/// A queue between two threads that takes no lock and allocates nothing. One thread pushes, the
/// other one peeks and pops.
template <typename Item, std::size_t capacity>
class TLockFreeQueue {
public:
    /// [pushing thread] @return false if the queue is full; the item is then lost.
    bool push(const Item &item);

    /// [popping thread] @return the oldest item; null if there is none. Valid until pop().
    const Item *peek() const;
    /// [popping thread] Removes the item that peek() returned.
    void pop();

    /// [any thread] An item counts until it is popped, so that whoever pops after the work on an
    /// item tells the other thread that the work is done.
    bool isEmpty() const { return m_pushed == m_popped; }

private:
    std::array<Item, capacity> m_items{};
    // Both only count up. The difference is how many items there are.
    std::atomic<std::size_t> m_pushed = 0, m_popped = 0;
    static_assert(std::atomic<std::size_t>::is_always_lock_free);
    static_assert((capacity & (capacity - 1)) == 0, "so that it fits when the counts overflow");
};

// Definitions

template <typename Item, std::size_t capacity>
bool TLockFreeQueue<Item, capacity>::push(const Item &item) {
    const std::size_t pushed = m_pushed;
    if (pushed - m_popped == capacity)
        return false;
    m_items[pushed % capacity] = item;
    m_pushed = pushed + 1;
    return true;
}

template <typename Item, std::size_t capacity>
const Item *TLockFreeQueue<Item, capacity>::peek() const {
    return isEmpty() ? nullptr : &m_items[m_popped % capacity];
}

template <typename Item, std::size_t capacity>
void TLockFreeQueue<Item, capacity>::pop() {
    m_popped = m_popped + 1;
}

}  // namespace Tessitor::Tool
