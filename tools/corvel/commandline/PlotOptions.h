#pragma once

#include "corvel/commandline/SCommand.h"
#include "corvel/commands/PlotCommand.h"

namespace Tessitor::Tool {

/// @param call  the command keeps a reference to it.
SCommand addPlot(CLI::App &app, SPlotCall &call);

}  // namespace Tessitor::Tool
