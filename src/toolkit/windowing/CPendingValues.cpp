#include "toolkit/windowing/CPendingValues.h"

#include <algorithm>

namespace Tessitor::Vst {

CPendingValues::CPendingValues(long size)
    : m_size(std::max(size, 0L)),
      m_waiting(std::make_unique<std::atomic<std::uint64_t>[]>(
          static_cast<std::size_t>((m_size + idsPerWord - 1) / idsPerWord))) {}

void CPendingValues::put(long id) {
    // Who sees the bit sees the value of the effect, too.
    if (isInTable(id))
        wordOf(id).fetch_or(bitOf(id), std::memory_order_release);
}

}  // namespace Tessitor::Vst
