#pragma once

#include "corvel/render/Render.h"

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

/// Adds --raw, --channels and --mono.
void addStream(CLI::App &command, SRenderOptions &options);

}  // namespace Tessitor::Tool
