#pragma once

#include "corvel/render/Render.h"

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

/// Adds --start, --length and --tail.
void addTime(CLI::App &command, SRenderOptions &options);

}  // namespace Tessitor::Tool
