#pragma once

namespace Tessitor::Tool {

/// From here on the first request to end the program (Ctrl-C, a polite kill) is only noted, so that
/// half written files can be removed; a second one ends it at once.
void noteInterrupts();

/// [any thread]
bool isInterrupted();

}  // namespace Tessitor::Tool
