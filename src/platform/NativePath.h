#pragma once

/// The path separator as a string of one character: "/" on Linux, "\\" on Windows.
extern const char nativePathSeparator[2];
