#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

// Both take the file to write; without an extension it is a folder, and becomes its "CPUStats.txt".
// A file that is there is replaced, so each of the two writes over the other's. If it cannot be
// made nothing is written, and nothing told.

/// Writes what is known of the drive that the path begins with.
void writeDriveReport(Basics::CSystemString &path);

/// Writes where the virtual screen lies and how large it is.
void writeDisplayReport(Basics::CSystemString &path);

}  // namespace Tessitor::Host
