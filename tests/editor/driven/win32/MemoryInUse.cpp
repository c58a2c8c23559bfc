#include "editor/driven/MemoryInUse.h"

#include "abi/HeapInUse.h"

std::size_t memoryInUse() {
    return heapInUse();
}
