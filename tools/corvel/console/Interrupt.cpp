#include "corvel/console/Interrupt.h"

#include "corvel/files/PartFiles.h"

#include <atomic>
#include <csignal>

namespace Tessitor::Tool {

namespace {

struct SRequest {
    int signal;
    const char *text;
};

constexpr SRequest requests[] = {
    {SIGINT, "interrupted"},
    {SIGTERM, "terminated"},
    {SIGHUP, "stopped, since the terminal was closed"},
    {SIGQUIT, "stopped by a quit signal"},
    {SIGPIPE, "stopped, since nobody reads the output any more"},
    {SIGXCPU, "stopped at the limit on processor time"},
    {SIGALRM, "stopped by an alarm signal"},
    {SIGUSR1, "stopped by a user signal"},
    {SIGUSR2, "stopped by a user signal"},
};

constexpr int crashes[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

std::atomic<int> received = 0;
static_assert(std::atomic<int>::is_always_lock_free);  // a signal handler writes it

extern "C" void endAtOnce(int signal) {
    removePartFiles();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

extern "C" void handleRequest(int signal) {
    int none = 0;
    if (!received.compare_exchange_strong(none, signal))
        endAtOnce(signal);
}

}  // namespace

void noteInterrupts() {
    for (const SRequest &request : requests) {
        const auto earlier = std::signal(request.signal, handleRequest);
        // Under nohup a program keeps running when its terminal is closed.
        if (request.signal == SIGHUP && earlier == SIG_IGN)
            std::signal(SIGHUP, SIG_IGN);
    }
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int crash : crashes) {
        const auto earlier = std::signal(crash, endAtOnce);
        if (earlier != SIG_DFL)  // a tool that examines this program
            std::signal(crash, earlier);
    }
}

bool isInterrupted() {
    return received != 0;
}

bool isOutputAbandoned() {
    return received == SIGPIPE;
}

std::string interruptionText() {
    for (const SRequest &request : requests)
        if (request.signal == received)
            return request.text;
    return "";
}

int interruptionStatus() {
    constexpr int endedBySignal = 128;
    return endedBySignal + received;
}

}  // namespace Tessitor::Tool
