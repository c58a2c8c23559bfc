#pragma once

#include "dspclasses/blocks/DetectorState.h"

/// The detector of TDetector in double precision, one frame at a time, for a detector whose peak is
/// flushed by its own last gain in dB (NeighbourFlush.h).
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

    /// @return whether the detector will stay inactive for all levels to come.
    bool isAsleep() const;

    /// Moves on by one frame.
    void detect(double level);

    /// Moves on by many frames while asleep, whatever their levels.
    void sleep(int frames);

private:
    SDetectorState &m_state;
    SGain &m_gain;
    const SDetectorSettings m_settings;
};
