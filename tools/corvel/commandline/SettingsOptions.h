#pragma once

#include "corvel/settings/CEffectSettings.h"

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

/// Adds the options that choose the effect's settings: --program, --preset, --set and --chain.
void addSettings(CLI::App &command, SSettingsRequest &request);

}  // namespace Tessitor::Tool
