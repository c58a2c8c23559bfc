#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DetectorState.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Compressor with one detector for both channels (linked) or one for each (separate).
///
/// The two precisions are deliberately not equivalent: in double precision, linked, the detector
/// does not rise above the threshold and only the make-up applies.
class CDSPComp : public CDSPBase {
public:
    enum EParameter : int {
        kThreshold,   ///< dB
        kAttack,      ///< ms
        kRelease,     ///< ms
        kRatio,       ///< above 0, not checked
        kMakeUp,      ///< dB
        kStereoMode,  ///< linked from 0.5 up, below that separate
    };

    /// Setting the stereo mode also resets, whether it changes or not.
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    /// Denormal input samples become 0.0 in the input buffers as well.
    void processReplacing(float **in, float **out, int frames) override;
    /// Does not change the input buffers.
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    SDetectorSettings settings() const;
    void clear();

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);
    template <typename Processor, typename Sample>
    void runLinked(Sample *inL, Sample *inR, Sample *outL, Sample *outR, int frames);
    template <typename Processor>
    void runSeparate(float *inL, float *inR, float *outL, float *outR, int frames);
    template <typename Processor>
    void runSeparate(double *inL, double *inR, double *outL, double *outR, int frames);
    template <typename Processor, typename Sample, typename Levels, typename Apply>
    void detectLeft(int frames, Levels levels, Apply applyGains);
    template <typename Processor>
    void detectRight(const double *in, double *out, int frames);

    TRelaxed<float> attackMs = 10.0f;
    TRelaxed<float> releaseMs = 100.0f;
    TRelaxed<float> attackCoef = smoothingCoefficient(attackMs, sampleRate);
    TRelaxed<float> releaseCoef = smoothingCoefficient(releaseMs, sampleRate);
    TRelaxed<float> thresholdDb = -20.0f;
    // Kept: not the level of thresholdDb. Until the threshold is first changed, any signal is
    // above it.
    TRelaxed<float> thresholdLinear = 0.0f;
    TRelaxed<float> ratio = 1.0f;
    // Kept: not the slope of ratio 1. Until the ratio is first changed, the gain rises with the
    // excess.
    TRelaxed<float> slope = 1.0f;
    TRelaxed<float> makeUpDb = 0.0f;
    TRelaxed<float> makeUpLinear = 1.0f;
    TRelaxed<bool> linked = true;
    CResetRequest resetRequest;

    // Running state
    SDetectorState left;  // or of both channels, if linked
    SDetectorState right;
    SGain leftGain;  // of the last frame; of both channels, if linked
};
