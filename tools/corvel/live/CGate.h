#pragma once

#include <atomic>

namespace Tessitor::Tool {

/// Keeps the audio thread away from the effect while another thread stops and restarts it. The
/// audio thread never waits at the gate: if it is closed, the block is silent. Closed at first.
class CGate {
public:
    /// [audio thread] @return false if the gate is closed. Otherwise leave() must follow.
    bool enter() {
        m_isInside = true;
        if (m_isOpen)
            return true;
        m_isInside = false;
        return false;
    }
    /// [audio thread]
    void leave() { m_isInside = false; }

    void open() { m_isOpen = true; }
    /// Waits until the audio thread is outside, which takes one block at most.
    void close();

private:
    // Each thread writes its own flag and then reads the other's, in one order for all threads. So
    // at least one of them sees what the other one did.
    std::atomic<bool> m_isOpen = false, m_isInside = false;
    static_assert(std::atomic<bool>::is_always_lock_free);
};

}  // namespace Tessitor::Tool
