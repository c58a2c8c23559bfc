#pragma once

#include <cstddef>

/// @return the bytes that the whole process has allocated and not freed; 0 under a sanitizer that
/// replaces the allocation.
std::size_t heapInUse();
