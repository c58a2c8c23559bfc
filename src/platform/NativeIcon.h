#pragma once

#include <string>

/// Icons of windows. [gui thread] A handle belongs to the caller. It is null if there is no such
/// icon.

/// @param resource  the number of the icon in the program's resources. Linux programs have none, so
///                  the result is null there.
void *loadNativeIcon(int resource);

/// @param path   on Windows a program, library or icon file; on Linux a PNG or JPEG picture.
/// @param index  of the icon in the file, from 0. On Linux a file has only one.
void *loadNativeIcon(const std::string &path, int index);

void destroyNativeIcon(void *icon);  ///< null is ignored
