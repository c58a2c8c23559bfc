#pragma once

#include "corvel/batch/Jobs.h"
#include "corvel/commands/Commands.h"

namespace Tessitor::Tool {

/// Prints what a command would do with each file, and changes nothing on the disk.
/// @return the exit status that the command would probably have.
int runDry(const SJobs &jobs, const SRenderCall &call, const CEffectSettings &settings,
           const CEffectLibrary &library);

}  // namespace Tessitor::Tool
