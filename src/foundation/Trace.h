#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::IO {

/// The log of the process: one stream of text, shared by all threads without a lock. It goes
/// nowhere until it is opened, and is closed when the program ends. [one thread at a time]

/// Closes the trace and begins it anew in this file, which is emptied.
/// @return false if the system refuses: the trace then goes nowhere.
bool openTrace(const Basics::CSystemString &path);

/// Writes a line, as printf formats it, and flushes.
[[gnu::format(printf, 1, 2)]] void trace(const char *format, ...);
/// Writes a line of the text and up to 1023 bytes of the object's description, and flushes.
void trace(const Basics::ICountedObject &object, const char *text);

}  // namespace Tessitor::IO
