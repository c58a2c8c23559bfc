#pragma once

namespace Tessitor::Exceptions {

// For the outermost handlers, which no exception may leave: those in a call of the host or of the
// system. Both report the exception that is being handled: the reason and the function name of a
// CException, or what else is known. They throw nothing; a report that cannot be made is lost.

/// @param lead  what was going on, such as "Caught an exception whilst ...".
void traceCaughtException(const char *lead) noexcept;
/// See displayMessage().
void displayCaughtException(const char *caption) noexcept;

}  // namespace Tessitor::Exceptions
