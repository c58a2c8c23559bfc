#pragma once

#include "values/TRelaxed.h"

/// A reset that any thread may request and the audio thread carries out. So the running state
/// belongs to the audio thread alone: it needs no atomics, it may live in registers for a whole
/// block, and a block that is running cannot undo the reset.
class CResetRequest {
public:
    void ask() { m_asked = true; }  ///< [any thread]

    /// @return true if a reset was requested since the last call; the caller must then clear its
    ///         state.
    /// [audio thread]
    bool take() {
        if (!m_asked)
            return false;
        m_asked = false;
        return true;
    }

private:
    TRelaxed<bool> m_asked;
};
