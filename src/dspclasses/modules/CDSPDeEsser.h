#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/CDSPRBJFilter.h"
#include "values/TRelaxed.h"

#include <vector>

struct SDetectorSettings;
struct SGain;

/// De-esser: a high-pass filter derives a side chain, and one detector on both of its channels
/// attenuates the whole signal (wide) or only what the filter passes (narrow).
///
/// Denormal input samples become 0.0 in the input buffers as well. A block that is longer than 512
/// frames and than any before in its precision allocates.
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
        kBand,       ///< from 0.5 narrow, below wide
        kListen,     ///< from 0.5 the output is the side chain and the detector pauses
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    template <typename Sample>
    struct SSideChain {
        std::vector<Sample> left = std::vector<Sample>(512);
        std::vector<Sample> right = std::vector<Sample>(512);

        void grow(int frames);
    };

    void clear();
    SDetectorSettings settings() const;
    template <typename Sample>
    void run(Sample **in, Sample **out, int frames, SSideChain<Sample> &chain);
    void detect(float **in, float **out, int frames);
    void detect(double **in, double **out, int frames);
    double levelAt(int frame, bool isNarrow) const;
    void detectFrame(double level, const SDetectorSettings &now);
    bool isAsleep(const SDetectorSettings &now) const;
    void moveGain(const SGain &next);
    void sleep(int frames, const SDetectorSettings &now);
    void write(const double *const *in, double *const *out, int first, int count,
               bool isNarrow) const;

    // In this order, which double precision depends on: see isFlushedByNeighbour.
    TRelaxed<float> speed = 0.5f;
    TRelaxed<float> attackMs = 26.0f;
    TRelaxed<float> releaseMs = 300.0f;
    TRelaxed<float> attackCoef = 0.99912786f;   // share kept per sample, from attackMs
    TRelaxed<float> releaseCoef = 0.99992442f;  // the same, from releaseMs
    float over = 0.0f;                          // smoothed amount over the threshold
    TRelaxed<float> thresholdDb = -20.0f;
    // Kept: not the level of thresholdDb. Until the threshold is first changed, any signal is
    // above.
    TRelaxed<float> thresholdLinear = 0.0f;
    float peak = 0.0f;
    float gainDb = 0.0f;  // last gain
    float gain = 1.0f;
    TRelaxed<float> ratio = 1.0f;
    float floorDb = 0.0f;  // of the gain law; no parameter sets it
    // Kept: not that of ratio 1. Until the ratio is first changed, the gain rises with the amount.
    TRelaxed<float> slope = 1.0f;
    float floorLinear = 1.0f;
    TRelaxed<bool> narrow = false;
    TRelaxed<bool> listen = false;
    TRelaxed<float> frequency = 1000.0f;  // Hz
    CDSPRBJFilter filter{CDSPRBJFilter::EKind::HighPass, 1000.0f, 0.0f, 0.5f, true};
    SSideChain<float> side;
    SSideChain<double> doubleSide;
    CResetRequest resetRequest;
};
