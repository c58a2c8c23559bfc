#pragma once

namespace Tessitor::Tool {

/// From now on the first request to end the program (Ctrl-C or SIGTERM) is only recorded, so that
/// unfinished files can be deleted. A second one ends the program at once.
void noteInterrupts();

/// [any thread]
bool isInterrupted();

}  // namespace Tessitor::Tool
