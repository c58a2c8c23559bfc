#pragma once

#include "platform/INativeWindow.h"

/// Registers the class of a window unless it exists. @return false if the system refuses.
bool registerWindowClass(const SNativeWindowOptions &options);
/// Ignored while a window of the class exists. A class that outlives this library would call a
/// procedure that is no longer there.
void unregisterWindowClass(const std::string &className);
