#pragma once

#include <string>

/// The files that the running code came from. [any thread]

/// @return the program or library that this code is linked into, as the system knows it: the
/// address
///         it was loaded at.
void *nativeModuleHandle();

/// @param module  a loaded program or library; null for the program of the process.
/// @return its full path in the system's own narrow encoding; empty if there is no such module.
///         Windows cuts it to 1023 bytes, Linux follows symbolic links to the file itself.
std::string nativeModulePath(void *module);
