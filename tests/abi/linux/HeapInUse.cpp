#include "abi/HeapInUse.h"

#include <malloc.h>

// The sanitizers have it, as their malloc is another one.
extern "C" [[gnu::weak]] std::size_t
__sanitizer_get_current_allocated_bytes();  // NOLINT(bugprone-reserved-identifier)

std::size_t heapInUse() {
    if (__sanitizer_get_current_allocated_bytes != nullptr)
        return __sanitizer_get_current_allocated_bytes();
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
