#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/GainLaw.h"
#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/TGateGain.h"
#include "values/TRelaxed.h"

/// Noise gate with one detector for both channels. The gain moves in decibels, by a constant factor
/// per sample: towards 0 dB while the peaks are above the threshold, otherwise towards -60 dB. It
/// comes to rest at a factor of exactly 1 or exactly 0.
class CDSPGate : public CDSPBase {
public:
    enum EParameter : int {
        kThreshold,  ///< dB
        kAttack,     ///< ms
        kRelease,    ///< ms
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

    /// @return whether the last frame's peak was above the threshold, for a display. [any thread]
    bool isOpen() const { return open; }

private:
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames);
    template <typename Processor, typename Sample>
    void runSteps(const Sample *inL, const Sample *inR, Sample *outL, Sample *outR, int frames);

    static constexpr SGain closed{TGateGain<float>::closedDb, 0.0f};

    TRelaxed<float> attackMs = 10.0f;
    TRelaxed<float> releaseMs = 100.0f;
    // Per frame, the gain in dB is multiplied by one of these.
    TRelaxed<float> attackFactor = smoothingCoefficient(attackMs, sampleRate);
    TRelaxed<float> releaseFactor = 1.0f / smoothingCoefficient(releaseMs, sampleRate);
    TRelaxed<float> thresholdDb = -20.0f;
    // Kept: not the level of thresholdDb. Until the threshold is first changed, any signal opens
    // the gate.
    TRelaxed<float> thresholdLinear = 0.0f;
    CResetRequest resetRequest;

    // Running state
    float peak = 0.0f;
    SGain gain = closed;
    TRelaxed<bool> open = false;
};
