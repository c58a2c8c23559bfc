#pragma once

#include "corvel/commands/Commands.h"

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

/// Adds the options on the picture of a render.
void addPicture(CLI::App &render, SRenderCall &call);

}  // namespace Tessitor::Tool
