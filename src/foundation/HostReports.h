#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

// Both write to the file at the path. A path without an extension is taken as a folder, and
// "CPUStats.txt" is appended to it. An existing file is replaced, also one that the other report
// wrote. If the file cannot be created, nothing happens.

/// Describes the drive that holds the report.
void writeDriveReport(Basics::CSystemString &path);

/// Writes position and size of the virtual screen.
void writeDisplayReport(Basics::CSystemString &path);

}  // namespace Tessitor::Host
