#pragma once

#include "dspclasses/blocks/DetectorState.h"

/// The same detector as TDetector in double precision, but frame by frame, for a module in which
/// the detector's own last gain in dB flushes its peak (NeighbourFlush.h).
///
/// While that gain is 0 dB, every peak is flushed, so nothing rises above the threshold and the
/// gain stays at 0 dB: the detector is asleep. Only single precision, which has a proper denormal
/// test, can wake it.
class CSleepingDetector {
public:
    /// @param state, gain  updated by each call; they outlive the detector.
    /// @param settings     with a gain law whose offset is 0 dB.
    CSleepingDetector(SDetectorState &state, SGain &gain, const SDetectorSettings &settings)
        : m_state(state), m_gain(gain), m_settings(settings) {}

    /// @return whether the detector will stay inactive whatever levels follow.
    bool isAsleep() const;

    /// Advances by one frame.
    void detect(double level);

    /// Advances by many frames while asleep; their levels do not matter.
    void sleep(int frames);

private:
    SDetectorState &m_state;
    SGain &m_gain;
    const SDetectorSettings m_settings;
};
