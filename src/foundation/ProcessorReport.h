#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Basics {

/// Writes the processor features that readProcessorFeatures() found. If the file cannot be created,
/// nothing happens.
/// @param path  the file. Without an extension it is taken as a folder, and "FPUStats.txt" is
///              appended.
void writeProcessorReport(CSystemString &path);

}  // namespace Tessitor::Basics
