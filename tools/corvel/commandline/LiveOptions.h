#pragma once

#include "corvel/commandline/SCommand.h"
#include "corvel/live/LiveCommand.h"

namespace Tessitor::Tool {

/// @param call  the command keeps a reference to it.
SCommand addLive(CLI::App &app, SLiveCall &call);

}  // namespace Tessitor::Tool
