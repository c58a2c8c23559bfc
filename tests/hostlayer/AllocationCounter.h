#pragma once

#include <cstdint>

/// @return how often this thread has called operator new. Only in a program that links
/// AllocationCounter.cpp, which replaces the global operators.
std::uint64_t allocationsOfThisThread();
