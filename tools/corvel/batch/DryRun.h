#pragma once

#include "corvel/batch/Jobs.h"
#include "corvel/commands/Commands.h"

namespace Tessitor::Tool {

/// Prints what a command would do with each file, and changes nothing on the disk.
/// @return the exit status that the command would have, as far as that can be told before.
int runDry(const SJobs &jobs, const SRenderCall &call, const CEffectSettings &settings,
           const CEffectLibrary &library);

}  // namespace Tessitor::Tool
