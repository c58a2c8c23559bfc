#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

#include <atomic>
#include <cstdint>

/// Vibrato, automatic double tracking (ADT) and phaser: a delay per channel, swept by an
/// oscillator. Three gains turn it into a plain delay, a delay with feedback or an all-pass. One
/// channel:
///
///     x --+------------------------------------ dry gain ----(+)--> out
///         |                                                   ^
///         +------------------- direct gain --(+)--+-- wet gain
///         |                                   ^   | y
///         v                                   |   |
///        (+)--> line --> read --> delayed gain    |
///         ^                ^ offset               |
///         |            oscillator                 |
///         +------------ feedback gain <-----------+
///
///                direct gain   delayed gain   feedback gain
///     Vibrato         0             1               0
///     ADT             0             1           feedback
///     Phaser      -feedback         1           feedback
///
///     offset = base + depth * wave of the oscillator, in samples
///
/// A width of more than 4096 samples, 92 ms, allocates longer lines, which start silent. The
/// oscillators keep running across a reset.
class CDSPModulation : public CDSPBase {
public:
    enum EParameter : int {
        kType,      ///< 0 to 1
        kWidth,     ///< the longest delay, ms
        kDepth,     ///< of the sweep, as a share of the width
        kSpeed,     ///< Hz
        kSpread,    ///< stereo offset of the oscillator, 0 to 1
        kFeedback,  ///< 0 to 1
        kMix,       ///< 0 to 1
    };

    enum EType : std::int32_t { kVibrato, kAdt, kPhaser };

    CDSPModulation();
    void setParameter(int index, float value) override;
    float getParameter(int index) override;  ///< for index 0 half the type
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    void setType(float value);
    void setWidth(float ms);
    void setDepth(float share);
    void applyDepth();
    void setSpeed(float hz);
    void setSpread(float value);
    void setFeedback(float value);
    void setMix(float value);

    struct SSettings;
    struct SSweep;
    void advanceOscillators(SSweep &sweep, int frames, float increment);
    template <typename Sample>
    static void mixChannel(const Sample *x, const float *delayed, Sample *out, float *toLine,
                           int frames, const SSettings &settings);
    template <typename Sample>
    static void runChannel(const Sample *in, Sample *out, int frames, const SSettings &settings,
                           float *sweep, DelayLine &line);
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames);

    TRelaxed<float> directGain = 0.0f;    // of the input in the wet sum
    TRelaxed<float> delayedGain = 1.0f;   // of the delayed signal in the wet sum
    TRelaxed<float> feedbackGain = 0.5f;  // of the wet sum back into the line
    TRelaxed<float> widthMs = 20.0f;
    TRelaxed<float> speedHz = 1.0f;
    TRelaxed<float> depth = 0.5f;
    TRelaxed<float> feedback = 0.5f;  // as set
    TRelaxed<float> mix = 0.5f;
    TRelaxed<float> spread = 0.5f;
    TRelaxed<float> dryGain = 0.70710677f;
    TRelaxed<float> wetGain = 0.70710677f;
    TRelaxed<float> lfoIncrement = 1.0f * invSampleRate * 2.0f;  // phase per sample
    float phaseLeft = 0.5f;                                      // -1 to 1 is a whole cycle
    std::atomic<float> phaseRight = 0.75f;
    TRelaxed<std::int32_t> type = kAdt;
    TRelaxed<std::uint32_t> widthSamples = 882;
    TRelaxed<std::uint32_t> depthSamples = 441;  // range of the sweep
    TRelaxed<std::uint32_t> baseSamples = 441;   // shortest delay
    DelayLine leftLine{4};
    DelayLine rightLine{4};
    CResetRequest resetRequest;
};
