#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

// All of these follow links. [one thread at a time]

/// @return true if the file can be opened for reading. False for a folder, although Linux can open
///         one.
bool fileExists(const Basics::CSystemString &path);
/// The same for a file in that folder.
bool fileExists(const Basics::CSystemString &folder, const Basics::CString &name);
/// A trailing separator is allowed; "*" and "?" are not expanded.
bool folderExists(const Basics::CSystemString &path);

}  // namespace Tessitor::Host
