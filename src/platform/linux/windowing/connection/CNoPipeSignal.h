#pragma once

#include <csignal>

/// While it exists, a write to a server that is gone sends this thread no SIGPIPE, which would end
/// the host. Not to be held while a window reports: a program that is started then would inherit
/// the blocked signal. [any thread]
class CNoPipeSignal {
public:
    CNoPipeSignal();
    CNoPipeSignal(const CNoPipeSignal &) = delete;
    CNoPipeSignal &operator=(const CNoPipeSignal &) = delete;
    ~CNoPipeSignal();

private:
    sigset_t m_before;
    bool m_wasPending;
};
