#pragma once

#include <string>

/// The files that the running code was loaded from. [any thread]

/// @return the load address of the program or library that this code is linked into.
void *nativeModuleHandle();

/// @param module  a loaded program or library; null for the program of the process.
/// @return its full path in the system's narrow encoding; empty if there is no such module. Windows
///         cuts it to 1023 bytes. Linux follows symbolic links.
std::string nativeModulePath(void *module);
