#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

namespace Tessitor::Tool {

// Options that several commands have

void addPlugin(CLI::App &command, std::optional<std::string> &plugin);
void addJson(CLI::App &command, bool &json);

}  // namespace Tessitor::Tool
