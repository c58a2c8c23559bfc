#pragma once

#include "dspclasses/blocks/BiquadCoefficients.h"
#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/kernels/BiquadLanes.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Stereo biquad in nine kinds: the building block of the tone modules and of the de-esser's side
/// chain. New coefficients take effect within the block and keep the state.
///
/// Denormal samples of the input become 0.0 in the input buffer as well. A filtered sample beyond
/// -5 to 5 is replaced by -1 or 1, so that an unstable recursion cannot run away. Kept: not clipped
/// at 5.
class CDSPRBJFilter : public CDSPBase {
public:
    using EKind = EBiquadKind;
    using SCoefficients = SBiquadCoefficients;

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
    /// Recomputes the coefficients and resets. Kept: also if the rate is 0 or unchanged, which the
    /// base ignores. Must not run while another thread uses the filter; nothing in the strip calls
    /// it.
    void setSampleRate(float rate);

    SCoefficients getCoefficients() const { return {b0, b1, b2, a1, a2}; }

    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

    // For a loop that does more than filter: take the biquad out, refresh it every 64 frames, put
    // it back after the block. [audio thread]

    /// @return the state of both channels. The coefficients may be old until the first refresh.
    const SBiquadLanes &takeOut() const { return biquad; }

    /// Copies the present coefficients, and clears the state if a reset was requested.
    void refresh(SBiquadLanes &now) {
        now.b0 = inBothChannels(b0);
        now.b1 = inBothChannels(b1);
        now.b2 = inBothChannels(b2);
        now.a1 = inBothChannels(a1);
        now.a2 = inBothChannels(a2);
        if (resetRequest.take())
            now.x1 = now.x2 = now.y1 = now.y2 = inBothChannels(0.0);
    }

    void putBack(const SBiquadLanes &after) {
        biquad.x1 = after.x1;
        biquad.x2 = after.x2;
        biquad.y1 = after.y1;
        biquad.y2 = after.y2;
    }

private:
    void updateCoefficients();

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);

    SBiquadLanes biquad;  // receives the coefficients before each group of frames
    TRelaxed<double> b0, b1, b2, a1, a2;
    TRelaxed<float> frequency = 440.0f;  // Hz
    TRelaxed<float> gainDb = 0.0f;       // dB
    TRelaxed<float> bandwidth = 1.0f;    // octaves, or the Q
    TRelaxed<bool> useBandwidth = true;  // whether bandwidth is in octaves
    TRelaxed<EKind> kind = EKind::LowPass;
    CResetRequest resetRequest;
};
