#pragma once

#include "dspclasses/blocks/CDSPOnePole.h"
#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DSPAllPass.h"
#include "dspclasses/blocks/DelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/ReverbGeometry.h"
#include "values/TRelaxed.h"

#include <array>

struct SReverbGroup;

/// Reverb: a feedback delay network of four lines. Numbers in brackets are indices of the four.
///
///     in L -> input filter -> all-pass [0] --+
///                 |                         mean -> early line -> 4 taps, times tap gain
///     in R -> input filter -> all-pass [0] --+                        |
///                                                                     |   early [k]
///      +--------------------------------------------------------------+--------------+
///      v                                                                             |
///     (+) -> line [k] -> line gain [k] -> damper [k] --+-----------------------+     |
///      ^                                               |  tail [k]             |     |
///      +--------------- Hadamard matrix <--------------+                  tail level, early level
///                                                                              |     |
///                                                                             (+) <--+   y [k]
///                                                                              |
///                                       wet = y [0] - y [1] + y [2] - y [3]  <-+
///
///     wet -> all-passes [1] [2] [3] of the left  -> (+) -> out L         dry: in L times dry level
///     wet -> all-passes [1] [2] [3] of the right -> (+) -> out R              in R times dry level
///
/// It runs in groups of frames; docs/kernels.md explains why and how long they are.
///
/// Setting the spread clears the all-passes and reallocates those that grow, so it must not run at
/// the same time as the audio thread. Kept: the lengths are computed from the present room, and a
/// later change of room does not change them.
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
    using LineEnds = std::array<DelayLine::SRun, reverbLines>;
    LineEnds endsOfLines() const;
    void filterInputAndWalls(const float *left, const float *right, const LineEnds &ends,
                             SReverbGroup &group, int frames);
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
    // Kept: one filter for both channels. It takes the left sample and then the right one, so each
    // channel leaks into the other.
    CDSPOnePole inputFilter;
    DelayLine tailDelays[reverbLines];
    TRelaxed<float> tailGains[reverbLines];    // kept: negative
    TRelaxed<float> tailLengths[reverbLines];  // samples, whole
    CDSPOnePole tailDampers[reverbLines];
    TRelaxed<float> wallDamping = -1.0f;
    TRelaxed<float> tapOffsets[reverbLines];  // samples, whole
    TRelaxed<float> tapGains[reverbLines];
    // Kept: four samples long, so a tap reads at its offset modulo 4. Only its gain follows the
    // whole offset.
    DelayLine earlyLine{4};
    DSPAllPass diffuserLeft[reverbLines];
    DSPAllPass diffuserRight[reverbLines];
    TRelaxed<double> decay = -1.0;  // factor per sample
    CResetRequest resetRequest;
};
