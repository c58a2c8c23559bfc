#include "editor/driven/MemoryInUse.h"

#include "abi/HeapInUse.h"

// The sanitizers have it, as their malloc is another one. It also counts 13 kB for each library
// that is loaded again, so the tests that do this use heapInUse().
extern "C" [[gnu::weak]] std::size_t
__sanitizer_get_current_allocated_bytes();  // NOLINT(bugprone-reserved-identifier)

std::size_t memoryInUse() {
    return __sanitizer_get_current_allocated_bytes != nullptr
               ? __sanitizer_get_current_allocated_bytes()
               : heapInUse();
}
