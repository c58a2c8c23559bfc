#include "platform/StandardStreams.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

int output = STDOUT_FILENO;

bool isReady(int stream, short event, int milliseconds) {
    pollfd request{stream, event, 0};
    return poll(&request, 1, milliseconds) > 0;
}

SStreamStep stepOf(ssize_t moved) {
    if (moved > 0)
        return {SStreamStep::Moved, static_cast<std::size_t>(moved), 0};
    if (moved == 0 || errno == EPIPE)
        return {SStreamStep::Ended, 0, 0};
    if (errno == EINTR || errno == EAGAIN)
        return {SStreamStep::NotReady, 0, 0};
    return {SStreamStep::Failed, 0, errno};
}

}  // namespace

bool isStandardInputTerminal() {
    return isatty(STDIN_FILENO) == 1;
}

bool isStandardOutputTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

SStreamStep readStandardInput(char *bytes, std::size_t count, int milliseconds) {
    if (!isReady(STDIN_FILENO, POLLIN, milliseconds))
        return {SStreamStep::NotReady, 0, 0};
    return stepOf(read(STDIN_FILENO, bytes, count));
}

SStreamStep writeStandardOutput(const char *bytes, std::size_t count, int milliseconds) {
    if (!isReady(output, POLLOUT, milliseconds))
        return {SStreamStep::NotReady, 0, 0};
    // A pipe that is ready takes this much without blocking.
    return stepOf(write(output, bytes, std::min<std::size_t>(count, PIPE_BUF)));
}

bool divertStandardOutput() {
    std::fflush(stdout);
    output = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    return output >= 0 && dup2(STDERR_FILENO, STDOUT_FILENO) >= 0;
}
