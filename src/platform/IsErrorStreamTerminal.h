#pragma once

/// @return true if what the program writes to standard error is shown on a terminal. [any thread]
bool isErrorStreamTerminal();
