#pragma once

#include <CLI/CLI.hpp>
#include <functional>

namespace Tessitor::Tool {

/// A subcommand and the function that runs it.
struct SCommand {
    CLI::App *app;
    std::function<int()> run;
};

}  // namespace Tessitor::Tool
