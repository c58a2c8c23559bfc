#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Noise gate with one detector for both channels. The gain moves in decibels, by a constant factor
/// per sample: towards 0 dB while the peaks are above the threshold, towards -60 dB while not. It
/// rests at exactly 1 and at exactly 0.
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
    template <typename Sample>
    void runSteps(const Sample *inL, const Sample *inR, Sample *outL, Sample *outR, int frames);

    TRelaxed<float> attackMs = 10.0f;
    TRelaxed<float> releaseMs = 100.0f;
    TRelaxed<float> attackFactor = 0.9977324f;   // of the decibels per sample, from attackMs
    TRelaxed<float> releaseFactor = 1.0002267f;  // the same, from releaseMs
    float gainDb = -60.0f;
    TRelaxed<float> thresholdDb = -20.0f;
    // Kept: not the level of thresholdDb. Until the threshold is first changed, any signal opens.
    TRelaxed<float> thresholdLinear = 0.0f;
    float peak = 0.0f;
    float gain = 0.0f;
    TRelaxed<bool> open = false;
    CResetRequest resetRequest;
};
