#pragma once

#include <cstddef>

/// @return the bytes that the process has allocated and not freed.
std::size_t heapInUse();
