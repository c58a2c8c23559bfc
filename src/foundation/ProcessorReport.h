#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Basics {

/// Writes which features of the processor readProcessorFeatures() has found. Nothing is written,
/// and nothing told, if the file cannot be made.
/// @param path  the file; without an extension it is a folder, and becomes its "FPUStats.txt".
void writeProcessorReport(CSystemString &path);

}  // namespace Tessitor::Basics
