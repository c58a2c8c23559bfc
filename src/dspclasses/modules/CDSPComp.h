#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

struct SDetectorSettings;

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
        kStereoMode,  ///< from 0.5 linked, below separate
    };

    /// Setting the stereo mode also resets, whether it changes or not.
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    /// Denormal input samples become 0.0 in the input buffers as well.
    void processReplacing(float **in, float **out, int frames) override;
    /// Leaves the input buffers as they are.
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    SDetectorSettings settings() const;
    void clear();

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);
    template <typename Sample>
    void runLinked(Sample *inL, Sample *inR, Sample *outL, Sample *outR, int frames);
    template <typename Sample>
    void runLeft(Sample *in, Sample *out, int frames);
    template <typename Sample>
    void runRight(Sample *in, Sample *out, int frames);
    template <typename Sample, typename Levels, typename Apply>
    void detectLeft(int frames, Levels levels, Apply applyGains);

    // In this order, which double precision depends on: see isClearedBy.
    TRelaxed<float> attackMs = 10.0f;
    TRelaxed<float> releaseMs = 100.0f;
    TRelaxed<float> attackCoef = 0.9977324f;    // share kept per sample, from attackMs
    TRelaxed<float> releaseCoef = 0.99977326f;  // the same, from releaseMs
    float overLeft = 0.0f;  // smoothed amount over the threshold, left or linked
    float overRight = 0.0f;
    TRelaxed<float> thresholdDb = -20.0f;
    // Kept: not the level of thresholdDb. Until the threshold is first changed, any signal is
    // above.
    TRelaxed<float> thresholdLinear = 0.0f;
    float peakLeft = 0.0f;  // left or linked
    float peakRight = 0.0f;
    float gainDbLeft = 0.0f;  // last gain, left or linked
    float gainDbRight = 0.0f;
    float gainLeft = 1.0f;
    float gainRight = 1.0f;
    TRelaxed<float> ratio = 1.0f;
    TRelaxed<float> makeUpDb = 0.0f;
    // Kept: not that of ratio 1. Until the ratio is first changed, the gain rises with the amount.
    TRelaxed<float> slope = 1.0f;
    TRelaxed<float> makeUpLinear = 1.0f;
    TRelaxed<bool> linked = true;
    CResetRequest resetRequest;
};
