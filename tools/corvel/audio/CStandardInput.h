#pragma once

#include <cstddef>

namespace Tessitor::Tool {

/// The bytes of standard input. A request to end the program ends them.
class CStandardInput {
public:
    /// @return bytes read; fewer than requested only at the end. Does not throw, since libsndfile
    ///         may be the caller.
    std::size_t read(char *bytes, std::size_t count);

    /// @throws CJobError if reading has failed, or CInterruption.
    void requireNoError() const;

    /// Reads and forgets the rest, so that the program that writes it does not fail.
    void drain();

private:
    bool m_ended = false;
    int m_error = 0;  // of the system
};

}  // namespace Tessitor::Tool
