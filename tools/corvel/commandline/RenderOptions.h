#pragma once

#include "corvel/commandline/SCommand.h"
#include "corvel/commands/Commands.h"

namespace Tessitor::Tool {

/// @param call  the command keeps a reference to it.
SCommand addRender(CLI::App &app, SRenderCall &call);

}  // namespace Tessitor::Tool
