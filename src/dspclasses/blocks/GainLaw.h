#pragma once

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/kernels/SingleMathLanes.h"

/// The gain that follows from the smoothed amount while the detector is active: it is above the
/// threshold, or on its way back.
struct SGainLaw {
    float slope;
    float offsetDb;
    float offsetLinear;

    /// @return in dB, of one frame.
    float decibels(bool isActive, float over) const {
        return isActive ? slope * over + offsetDb : offsetDb;
    }
    /// @return linear, from those decibels.
    float linear(bool isActive, float gainDb) const {
        return isActive ? linearFromDecibels(gainDb) : offsetLinear;
    }
};

/// What the detector makes of four frames.
struct SDetected {
    Mask4 areActive;
    Floats4 overs;  // smoothed amounts over the threshold
};

/// The gains by the law, in two stages. The exponential runs only where the detector is active.
class CGainsByLaw {
public:
    [[gnu::always_inline]] void start(const SGainLaw &law, const SDetected &detected) {
        m_areActive = detected.areActive;
        if (isAnySet(m_areActive)) {
            const Floats4 decibels = law.slope * detected.overs + law.offsetDb;
            m_parts = startExp(withinFloat({decibels * exponentPerDecibel}));
        }
    }
    [[gnu::always_inline]] Floats4 finish(const SGainLaw &law) const {
        const Floats4 offset = splat(law.offsetLinear);
        if (!isAnySet(m_areActive))
            return offset;
        return m_areActive ? rounded(finishExp(m_parts)).values : offset;
    }

private:
    Mask4 m_areActive{};
    TExpParts<4> m_parts{};
};
