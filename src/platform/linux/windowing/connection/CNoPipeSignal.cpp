#include "platform/linux/windowing/connection/CNoPipeSignal.h"

#include <cerrno>
#include <ctime>

namespace {

sigset_t pipeSignal() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    return signals;
}

bool isPending() {
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
}

}  // namespace

CNoPipeSignal::CNoPipeSignal() : m_before(), m_wasPending(isPending()) {
    const sigset_t signals = pipeSignal();
    pthread_sigmask(SIG_BLOCK, &signals, &m_before);
}

CNoPipeSignal::~CNoPipeSignal() {
    const sigset_t signals = pipeSignal();
    const timespec now = {};
    while (!m_wasPending && sigtimedwait(&signals, nullptr, &now) < 0 && errno == EINTR) {
    }
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}
