#pragma once

/// @return true if standard error is a terminal. [any thread]
bool isErrorStreamTerminal();
