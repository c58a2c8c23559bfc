#pragma once

/// The separator in paths, a string of one byte: "/" or "\\".
extern const char nativePathSeparator[2];
