#pragma once

#include <cstdint>

// For programs that link Locks.cpp with the linker's options --wrap=pthread_mutex_lock and
// --wrap=pthread_mutex_trylock.

/// @return how often this thread has locked a mutex, or has tried to.
std::uint64_t locksOfThisThread();
