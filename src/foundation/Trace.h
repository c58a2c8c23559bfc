#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::IO {

/// The log of the process: one text stream, shared by all threads without a lock. Nothing is
/// written until it is opened. It is closed when the program ends. [one thread at a time]

/// Closes the trace and starts a new one in this file, replacing its contents.
/// @return false if the file cannot be opened. The trace is then closed.
bool openTrace(const Basics::CSystemString &path);

/// Formats a line like printf, writes it and flushes.
[[gnu::format(printf, 1, 2)]] void trace(const char *format, ...);
/// Writes a line with the text and up to 1024 bytes of the object's description, and flushes.
void trace(const Basics::ICountedObject &object, const char *text);

}  // namespace Tessitor::IO
