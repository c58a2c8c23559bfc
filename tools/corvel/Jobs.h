#pragma once

#include "corvel/Render.h"

#include <string>
#include <vector>

namespace Tessitor::Tool {

/// @param files  inputs and, last, the output. If that is a folder, or if there are several inputs,
///               each output file is named after its input.
/// @throws CCallError if two inputs would give the same file, or an input would be overwritten.
std::vector<SRenderJob> jobsFromFiles(const std::vector<std::string> &files,
                                      const SFormatRequest &format);

}  // namespace Tessitor::Tool
