#pragma once

#include "dspclasses/blocks/CDSPOnePole.h"
#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DSPAllPass.h"
#include "dspclasses/blocks/DelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Reverb: four delay lines that feed each other through a Hadamard matrix, behind an input filter,
/// a diffuser per channel and a short early line; two chains of all-passes make the one wet signal
/// a stereo pair.
///
/// Setting the spread replaces and clears the buffers of the all-passes, so it must not run beside
/// the audio thread. The all-pass lengths follow the room size set at that moment; a later change
/// of room leaves them alone.
class CDSPReverb : public CDSPBase {
public:
    enum EParameter : int {
        kRoomSize,      ///< m, from 1
        kTime,          ///< s, to -60 dB
        kInputDamping,  ///< 0 to 1
        kWallDamping,   ///< 0 to 1
        kSpread,        ///< 0 to 1
        kDryLevel,      ///< linear
        kEarlyLevel,    ///< linear
        kTailLevel,     ///< linear
    };

    CDSPReverb();
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    static constexpr int lines = 4;
    static constexpr int groupFrames = 64;

    void setInputDamping(float value);
    void setWallDamping(float value);
    void setReverbTime(float seconds);
    void setRoomSize(float metres);
    void setSpread(float value);
    void applyDecayToTails();
    float decayOver(float samples) const;
    void clear();

    struct SGroup;
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames);
    int framesAhead() const;
    void filterInputAndWalls(const float *left, const float *right, SGroup &group, int frames);
    void feedEarlyLine(SGroup &group, int frames);
    void closeLoop(SGroup &group, int frames);
    static void mixWet(SGroup &group, int frames, float earlyLevel, float tailLevel);
    static void scatter(const SGroup &group, float (*returns)[groupFrames], int frames);

    TRelaxed<float> inputDamping = -1.0f;
    // Kept: the dry signal is inverted until its level is first set.
    TRelaxed<float> dryLevel = -1.0f;
    TRelaxed<float> earlyLevel = 0.7f;
    TRelaxed<float> tailLevel = 0.6f;
    TRelaxed<float> roomSize = -1.0f;    // m
    TRelaxed<float> reverbTime = -1.0f;  // s, to -60 dB
    TRelaxed<float> spread = -1.0f;
    CDSPOnePole inputFilter;  // kept: one for both channels, which take turns
    DelayLine tailDelays[lines];
    TRelaxed<float> tailGains[lines];    // negative
    TRelaxed<float> tailLengths[lines];  // samples, whole
    CDSPOnePole tailDampers[lines];
    TRelaxed<float> wallDamping = -1.0f;
    TRelaxed<float> tapOffsets[lines];  // samples, whole
    TRelaxed<float> tapGains[lines];
    // Kept: four samples long, so that a tap hears its offset modulo 4; only its gain follows the
    // whole offset.
    DelayLine earlyLine{4};
    DSPAllPass diffuserLeft[lines];
    DSPAllPass diffuserRight[lines];
    TRelaxed<double> decayBase = -1.0;  // factor per sample
    CResetRequest resetRequest;
};
