#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

// What a path leads to. Links are followed. [any thread]

/// @return true if the file can be opened for reading. A folder is no file on any system, though
///         Linux would open one and fail only at the first byte.
bool fileExists(const Basics::CSystemString &path);
/// The same for the file of that name in the folder.
bool fileExists(const Basics::CSystemString &folder, const Basics::CString &name);
bool folderExists(const Basics::CSystemString &path);

}  // namespace Tessitor::Host
