#pragma once

#include "dspclasses/blocks/DetectorState.h"
#include "dspclasses/blocks/GainLaw.h"
#include "dspclasses/kernels/SingleMathLanes.h"

/// SGainLaw for four frames, as two stages of a staged loop. The exponential is skipped if no frame
/// is active.
template <typename Processor>
class CGainsByLaw {
public:
    [[gnu::always_inline]] void start(const SGainLaw &law, const SDetected &detected) {
        m_areActive = detected.areActive;
        if (isAnySet(m_areActive)) {
            const Floats4 decibels = law.slope * detected.smoothedExcessesDb + law.offsetDb;
            m_parts = startExp<Processor>(clampedExponents({decibels * exponentPerDecibel}));
        }
    }
    /// @return linear gains.
    [[gnu::always_inline]] Floats4 finish(const SGainLaw &law) const {
        const Floats4 offset = splat(law.offsetLinear);
        if (!isAnySet(m_areActive))
            return offset;
        return m_areActive ? narrowed(finishExp<Processor>(m_parts)).values : offset;
    }

private:
    Mask4 m_areActive{};
    TExpParts<4> m_parts{};
};
