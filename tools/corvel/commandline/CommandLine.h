#pragma once

namespace Tessitor::Tool {

/// Runs the command that the arguments name.
/// @return the exit status.
/// @throws CCallError if the arguments are wrong, and what the command throws.
int parseAndRun(int argc, char **argv);

}  // namespace Tessitor::Tool
