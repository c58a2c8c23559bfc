#pragma once

#include "corvel/Render.h"

#include <string>
#include <vector>

namespace Tessitor::Tool {

/// From the file names of a call, the last of which is the output, to what is to be done. With an
/// output folder, or several inputs, each output is named after its input.
/// @throws CCallError if two inputs would become one file, or an input would be written over.
std::vector<SRenderJob> jobsFromFiles(const std::vector<std::string> &files,
                                      const SFormatRequest &format);

}  // namespace Tessitor::Tool
