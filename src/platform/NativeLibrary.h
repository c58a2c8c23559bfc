#pragma once

#include <string>

/// Shared libraries of the system. [any thread]

/// @param path    file in the system's own narrow encoding; one without a folder lies in the
/// current
///                one, though Windows prefers one of that name beside the program.
/// @param reason  the system's words when the result is null.
/// @return a handle for the two functions below, null if the system refuses the file.
void *openNativeLibrary(const std::string &path, std::string &reason);

/// @return the exported function or datum, null if the library has none of that name.
void *nativeSymbol(void *library, const char *name);

/// Gives the handle back; null is ignored.
void closeNativeLibrary(void *library);
