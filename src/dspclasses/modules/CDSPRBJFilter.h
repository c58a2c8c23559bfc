#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/kernels/BiquadLanes.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

#include <cstdint>

/// Stereo biquad in nine kinds: the building block of the tone modules and of the de-esser's side
/// chain. A change of coefficients takes effect within the block, on the state as it is.
///
/// Denormal samples of the input become 0.0 in the input buffer as well. A filtered sample beyond
/// -5 to 5 is replaced by -1 or 1, so that an unstable recursion cannot run away.
/// Source: R. Bristow-Johnson, Cookbook formulae for audio EQ biquad filter coefficients.
class CDSPRBJFilter : public CDSPBase {
public:
    enum class EKind : std::int32_t {
        LowPass,
        HighPass,
        BandPassSkirt,  // constant gain of the skirts
        BandPassPeak,   // constant gain at the peak
        Notch,
        AllPass,
        Peaking,
        LowShelf,
        HighShelf,
    };

    /// Divided by a0, for y = b0 x + b1 x1 + b2 x2 - a1 y1 - a2 y2.
    struct SCoefficients {
        double b0, b1, b2, a1, a2;
    };

    /// A low-pass at 440 Hz, one octave.
    CDSPRBJFilter();
    /// @param bandwidth  octaves if useBandwidth, otherwise the Q.
    CDSPRBJFilter(EKind kind, float frequency, float gainDb, float bandwidth, bool useBandwidth);

    /// @param hz  above 0 and below half the sample rate; not checked. [any thread]
    void setFrequency(float hz);
    /// @param db  of the peak or the shelf; the other kinds ignore it. [any thread]
    void setGain(float db);
    /// @param value  octaves or Q, above 0; not checked. [any thread]
    void setBandwidth(float value);
    /// Computes the coefficients anew and resets, also when the rate is 0 or the present one. Not
    /// beside another call; nothing in the strip changes the rate.
    void setSampleRate(float rate);

    SCoefficients getCoefficients() const { return {b0, b1, b2, a1, a2}; }

    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

    // For a loop that does more than filter. [audio thread]

    /// @return the state, the coefficients not yet among it.
    SBiquadLanes takeOut() const {
        SBiquadLanes lanes{};
        lanes.x1 = frameOf(left.x1, right.x1);
        lanes.x2 = frameOf(left.x2, right.x2);
        lanes.y1 = frameOf(left.y1, right.y1);
        lanes.y2 = frameOf(left.y2, right.y2);
        return lanes;
    }

    /// To be called every 64 frames: the coefficients as they are now, and a reset if one was asked
    /// for.
    void refresh(SBiquadLanes &lanes) {
        lanes.b0 = inBothChannels(b0);
        lanes.b1 = inBothChannels(b1);
        lanes.b2 = inBothChannels(b2);
        lanes.a1 = inBothChannels(a1);
        lanes.a2 = inBothChannels(a2);
        if (resetRequest.take())
            lanes.x1 = lanes.x2 = lanes.y1 = lanes.y2 = inBothChannels(0.0);
    }

    /// @param lanes  what takeOut gave, after the block. The coefficients are not read.
    void putBack(const SBiquadLanes &lanes) {
        left = {leftOf(lanes.y1), leftOf(lanes.y2), leftOf(lanes.x1), leftOf(lanes.x2)};
        right = {rightOf(lanes.y1), rightOf(lanes.y2), rightOf(lanes.x1), rightOf(lanes.x2)};
    }

private:
    void updateCoefficients();

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);

    TRelaxed<double> b0, b1, b2, a1, a2;

    struct SHistory {
        double y1 = 0.0, y2 = 0.0;  // last outputs
        double x1 = 0.0, x2 = 0.0;  // last inputs
    };
    SHistory left;
    SHistory right;

    TRelaxed<float> frequency = 440.0f;  // Hz
    TRelaxed<float> gainDb = 0.0f;       // dB
    TRelaxed<float> bandwidth = 1.0f;    // octaves, or the Q
    TRelaxed<bool> useBandwidth = true;  // what bandwidth means
    TRelaxed<EKind> kind = EKind::LowPass;
    CResetRequest resetRequest;
};
