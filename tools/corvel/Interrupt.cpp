#include "corvel/Interrupt.h"

#include <atomic>
#include <csignal>

namespace Tessitor::Tool {

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);  // a signal handler writes it

extern "C" void handleInterrupt(int signal) {
    interrupted = true;
    std::signal(signal, SIG_DFL);
}

}  // namespace

void noteInterrupts() {
    std::signal(SIGINT, handleInterrupt);
    std::signal(SIGTERM, handleInterrupt);
}

bool isInterrupted() {
    return interrupted;
}

}  // namespace Tessitor::Tool
