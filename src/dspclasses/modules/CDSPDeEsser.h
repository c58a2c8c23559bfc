#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DetectorState.h"
#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/CDSPRBJFilter.h"
#include "dspclasses/modules/TSideChain.h"
#include "values/TRelaxed.h"

/// De-esser: a high-pass filter derives a side chain, and one detector on both of its channels
/// attenuates the whole signal (wide) or only what the filter passes (narrow).
///
/// Denormal input samples become 0.0 in the input buffers as well. A block allocates if it is
/// longer than 512 frames and than every earlier block in its precision.
///
/// The two precisions are deliberately not equivalent: in double precision the detector does not
/// rise above the threshold, and the signal passes unchanged.
class CDSPDeEsser : public CDSPBase {
public:
    enum EParameter : int {
        kThreshold,  ///< dB
        kSpeed,      ///< 0, the fastest, to 1
        kRatio,      ///< above 0, not checked
        kFrequency,  ///< Hz
        kBand,       ///< narrow from 0.5 up, below that wide
        kListen,     ///< from 0.5 up, outputs the side chain and pauses the detector
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    void clear();
    SDetectorSettings settings() const;
    template <typename Sample>
    void run(Sample **in, Sample **out, int frames, TSideChain<Sample> &side);
    void attenuate(float **in, float **out, int frames);
    void attenuate(double **in, double **out, int frames);
    double doubleLevelAt(int frame, bool isNarrow);
    void applyGain(const double *const *in, double *const *out, int first, int count,
                   bool isNarrow);

    TRelaxed<float> speed = 0.5f;
    TRelaxed<float> attackMs = 26.0f;    // from speed
    TRelaxed<float> releaseMs = 300.0f;  // from speed
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
    TRelaxed<bool> narrow = false;
    TRelaxed<bool> listen = false;
    TRelaxed<float> frequency = 1000.0f;  // Hz
    CResetRequest resetRequest;

    // The offset of the gain law, which no parameter sets
    static constexpr float floorDb = 0.0f;
    static constexpr float floorLinear = 1.0f;

    // Running state
    CDSPRBJFilter filter{CDSPRBJFilter::EKind::HighPass, 1000.0f, 0.0f, 0.5f, true};
    SDetectorState detector;
    SGain gain;  // of the last frame
    TSideChain<float> singleSide;
    TSideChain<double> doubleSide;
};
