#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Completes a command line for the shells, whose scripts run `corvel complete WORD...`.
/// @param app    has all commands and options.
/// @param words  what follows "corvel" up to the cursor; the last one is being typed and may be
/// empty.
/// @return lines for the shell: a text that the last word may become, then, after a tab, what it
///         means. The line "@files" or "@folders" asks for names from the disk.
std::string completionsOf(const CLI::App &app, const std::vector<std::string> &words);

}  // namespace Tessitor::Tool
