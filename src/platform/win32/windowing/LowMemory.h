#pragma once

#include <cstddef>

/// Memory at addresses below 2 GB, wherever the heap of the process is, in pieces of 64 KB. Throws
/// std::bad_alloc if there is none.
void *allocateLowMemory(std::size_t size);
void freeLowMemory(void *memory);  ///< null is ignored
