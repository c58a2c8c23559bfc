#pragma once

#include "corvel/commandline/SCommand.h"
#include "corvel/commands/Commands.h"

namespace Tessitor::Tool {

// The commands keep references to their calls.

SCommand addPrograms(CLI::App &app, SProgramsCall &call);
SCommand addParams(CLI::App &app, SParamsCall &call);
SCommand addInfo(CLI::App &app, SInfoCall &call);

}  // namespace Tessitor::Tool
