#pragma once

#include "dspclasses/blocks/CDSPOnePole.h"
#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DSPAllPass.h"
#include "dspclasses/blocks/DelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/ReverbGeometry.h"
#include "values/TRelaxed.h"

struct SReverbGroup;

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
    void setInputDamping(float value);
    void setWallDamping(float value);
    void setReverbTime(float seconds);
    void setRoomSize(float metres);
    void setSpread(float value);
    void applyDecayToTails();
    void clear();

    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames);

    // The stages of a group of frames, in this order.
    int framesAhead() const;  ///< frames of the group: none reads from a line what another feeds it
    void readLines(SReverbGroup &group, int frames) const;
    void filterInputAndWalls(const float *left, const float *right, SReverbGroup &group,
                             int frames);
    void diffuseInput(SReverbGroup &group, int frames);
    void runEarlyLine(SReverbGroup &group, int frames);
    void feedLines(const SReverbGroup &group, int frames);
    void diffuseWet(SReverbGroup &group, int frames);

    TRelaxed<float> inputDamping = -1.0f;
    // Kept: the dry signal is inverted until its level is first set.
    TRelaxed<float> dryLevel = -1.0f;
    TRelaxed<float> earlyLevel = 0.7f;
    TRelaxed<float> tailLevel = 0.6f;
    TRelaxed<float> roomSize = -1.0f;    // m
    TRelaxed<float> reverbTime = -1.0f;  // s, to -60 dB
    TRelaxed<float> spread = -1.0f;
    CDSPOnePole inputFilter;  // kept: one for both channels, which take turns
    DelayLine tailDelays[reverbLines];
    TRelaxed<float> tailGains[reverbLines];    // negative
    TRelaxed<float> tailLengths[reverbLines];  // samples, whole
    CDSPOnePole tailDampers[reverbLines];
    TRelaxed<float> wallDamping = -1.0f;
    TRelaxed<float> tapOffsets[reverbLines];  // samples, whole
    TRelaxed<float> tapGains[reverbLines];
    // Kept: four samples long, so that a tap hears its offset modulo 4; only its gain follows the
    // whole offset.
    DelayLine earlyLine{4};
    DSPAllPass diffuserLeft[reverbLines];
    DSPAllPass diffuserRight[reverbLines];
    TRelaxed<double> decay = -1.0;  // factor per sample
    CResetRequest resetRequest;
};
