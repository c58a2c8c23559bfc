#include "corvel/audio/CStandardInput.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "platform/StandardStreams.h"

#include <array>
#include <system_error>

namespace Tessitor::Tool {

std::size_t CStandardInput::read(char *bytes, std::size_t count) {
    // A signal just before the wait does not end it.
    constexpr int longestWait = 100;  // ms
    std::size_t done = 0;
    while (done < count && !m_ended && !isInterrupted()) {
        const SStreamStep step = readStandardInput(bytes + done, count - done, longestWait);
        done += step.result == SStreamStep::Moved ? step.bytes : 0;
        m_ended = step.result == SStreamStep::Ended || step.result == SStreamStep::Failed;
        m_error = step.error;
    }
    return done;
}

void CStandardInput::requireNoError() const {
    if (isInterrupted())
        throw CInterruption();
    if (m_error != 0)
        throw CJobError("standard input: cannot be read (" +
                        std::system_category().message(m_error) + ")");
}

void CStandardInput::drain() {
    std::array<char, 65536> bytes;
    while (read(bytes.data(), bytes.size()) > 0) {
    }
    requireNoError();
}

}  // namespace Tessitor::Tool
