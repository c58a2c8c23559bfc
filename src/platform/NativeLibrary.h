#pragma once

#include <string>

/// Shared libraries. [any thread]

/// @param path    in the system's narrow encoding. A bare file name refers to the current folder,
///                but on Windows a file of that name in the program's own folder comes first.
/// @param reason  receives the system's error message if the result is null.
/// @return a handle for the two functions below; null if the system refuses the file.
void *openNativeLibrary(const std::string &path, std::string &reason);

/// Opens a library that is installed on the system.
/// @param name    as the system's loader knows it, such as "libcairo.so.2" or "version.dll".
/// @param reason  receives the system's error message if the result is null.
/// @return a handle for the two functions below; null if there is no such library.
void *openSystemLibrary(const std::string &name, std::string &reason);

/// @return the exported function or variable; null if the library exports none of that name.
void *nativeSymbol(void *library, const char *name);

/// Releases the handle. Null is ignored.
void closeNativeLibrary(void *library);
