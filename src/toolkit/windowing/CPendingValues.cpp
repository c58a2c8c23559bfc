#include "toolkit/windowing/CPendingValues.h"

#include <algorithm>

namespace Tessitor::Vst {

CPendingValues::CPendingValues(long size)
    : m_size(std::max(size, 0L)),
      m_values(std::make_unique<std::atomic<double>[]>(static_cast<std::size_t>(m_size))),
      m_waiting(std::make_unique<std::atomic<std::uint64_t>[]>(
          static_cast<std::size_t>((m_size + idsPerWord - 1) / idsPerWord))) {}

void CPendingValues::put(long id, double value) {
    if (!isInTable(id))
        return;
    m_values[id].store(value, std::memory_order_relaxed);
    // Who sees the bit sees the value, too.
    wordOf(id).fetch_or(bitOf(id), std::memory_order_release);
}

void CPendingValues::discard(long id) {
    if (isInTable(id))
        clear(id);
}

}  // namespace Tessitor::Vst
