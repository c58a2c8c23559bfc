#pragma once

#include <cstddef>

/// @return the bytes that the process has allocated and not freed; 0 under a sanitizer that
///         replaces malloc.
std::size_t heapInUse();
