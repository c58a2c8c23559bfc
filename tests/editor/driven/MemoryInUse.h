#pragma once

#include <cstddef>

/// @return the bytes that the process has allocated and not freed, also under the sanitizers.
std::size_t memoryInUse();
