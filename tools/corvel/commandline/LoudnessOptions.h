#pragma once

#include "corvel/render/Render.h"

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

/// Adds the options on loudness, clipping and dither.
void addLoudness(CLI::App &render, SRenderOptions &options);

}  // namespace Tessitor::Tool
