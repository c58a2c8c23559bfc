#pragma once

#include "corvel/Render.h"

#include <string>
#include <vector>

namespace Tessitor::Tool {

/// @param files  the inputs and then the output. If the output is a folder, or if there are several
///               inputs, each output file is named after its input.
/// @throws CCallError if two inputs would be written to the same file, or an input would be
///         overwritten.
std::vector<SRenderJob> jobsFromFiles(const std::vector<std::string> &files,
                                      const SFormatRequest &format);

}  // namespace Tessitor::Tool
