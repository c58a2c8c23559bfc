#include "abi/HeapInUse.h"

#include <malloc.h>

std::size_t heapInUse() {
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
