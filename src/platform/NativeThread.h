#pragma once

#include <cstdint>

// Numbers by which a thread can be recognised later. The ids of the system will not do: a new
// thread often gets the id of one that has ended.

/// Gives this thread a number, unless it has one. No other thread of the process ever gets the
/// same.
/// @return the number; 0 if the system has no room for it. [any thread]
std::uintptr_t numberNativeThread();

/// @return the number of this thread; 0 if it has none. Takes no lock, allocates nothing and makes
///         no system call. [any thread, once a call of numberNativeThread() has returned]
std::uintptr_t nativeThreadNumber();
