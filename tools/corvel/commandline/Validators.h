#pragma once

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

// Checks of an option's value. Their errors are for the user.

/// Unlike CLI::Range it refuses what is not a number.
CLI::Validator between(double low, double high);

CLI::Validator wholeNumber();

}  // namespace Tessitor::Tool
