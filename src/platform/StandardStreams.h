#pragma once

#include <cstddef>

bool isStandardInputTerminal();
bool isStandardOutputTerminal();

/// One attempt to move bytes through a stream.
struct SStreamStep {
    enum EResult { Moved, NotReady, Ended, Failed };
    EResult result;
    std::size_t bytes;  // if moved
    int error;          // of the system, if failed
};

/// Waits until there are bytes, but no longer than `milliseconds` and not beyond a signal.
/// @return Ended at the end of the input.
SStreamStep readStandardInput(char *bytes, std::size_t count, int milliseconds);

/// Likewise. Writes to the original standard output after divertStandardOutput().
/// @return Ended if nobody reads the output any more.
SStreamStep writeStandardOutput(const char *bytes, std::size_t count, int milliseconds);

/// From now on, what this program and its libraries print to standard output goes to standard
/// error. Only writeStandardOutput() still reaches standard output. Call once, before other threads
/// start.
/// @return false if the system refuses.
bool divertStandardOutput();
