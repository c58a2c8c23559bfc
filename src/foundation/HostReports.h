#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

// Both write a file that replaces one of the other; nothing is written, and nothing told, if it
// cannot be made. @param path  the file; without an extension it is a folder, and becomes its
// "CPUStats.txt".

/// Writes what is known of the drive that the path begins with.
void writeDriveReport(Basics::CSystemString &path);

/// Writes where the virtual screen lies and how large it is.
void writeDisplayReport(Basics::CSystemString &path);

}  // namespace Tessitor::Host
