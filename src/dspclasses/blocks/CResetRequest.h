#pragma once

#include "values/TRelaxed.h"

/// A reset that any thread asks for and the audio thread carries out, so that running state belongs
/// to the audio thread alone: it needs no atomics, may live in registers for a whole block, and a
/// clearing is never undone by the block that runs beside it.
class CResetRequest {
public:
    void ask() { m_asked = true; }  ///< [any thread]

    /// @return true once after each ask: the caller clears its state now. [audio thread]
    bool take() {
        if (!m_asked)
            return false;
        m_asked = false;
        return true;
    }

private:
    TRelaxed<bool> m_asked;
};
