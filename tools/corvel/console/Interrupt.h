#pragma once

#include <exception>
#include <string>

namespace Tessitor::Tool {

/// Ends a job when the program has been asked to end.
class CInterruption : public std::exception {
public:
    const char *what() const noexcept override { return "interrupted"; }
};

/// From now on the first request to end the program, such as Ctrl-C, is only recorded, so that
/// unfinished files can be deleted. A second one, or a crash, deletes them and ends the program at
/// once. Beyond the limit on the size of files, writing fails and the program goes on.
void noteInterrupts();

/// [any thread]
bool isInterrupted();

/// @return true if that was a broken pipe: nobody reads the output any more. [any thread]
bool isOutputAbandoned();

/// @return what happened, for the user: "interrupted".
std::string interruptionText();

/// @return the exit status by which shells recognise the signal.
int interruptionStatus();

}  // namespace Tessitor::Tool
