#pragma once

#include "values/TRelaxed.h"

/// A reset that any thread asks for and the audio thread carries out. Running state thus belongs to
/// the audio thread alone: it needs no atomics, may live in registers for a whole block, and a
/// block that runs at that moment cannot undo the reset.
class CResetRequest {
public:
    void ask() { m_asked = true; }  ///< [any thread]

    /// @return true if a reset was asked for since the last call: the caller clears its state now.
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
