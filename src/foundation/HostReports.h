#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

// Both write to the file at the path. A path without an extension is taken as a folder, and
// "CPUStats.txt" is appended to it. An existing file is replaced, even if the other report wrote
// it. If the file cannot be created, nothing happens.

/// Describes the drive that holds the report.
void writeDriveReport(Basics::CSystemString &path);

/// Writes the position and size of the virtual screen.
void writeDisplayReport(Basics::CSystemString &path);

}  // namespace Tessitor::Host
