#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/DelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

#include <cstdint>

/// Stereo feedback delay. Its time is free, or half a beat or a whole beat of the host's tempo.
///
///     in L --+--------------------------------- dry --(+)--> out L
///            |                                         ^
///            +--(+)--> left line --+-------- wet ------+
///                ^                 | echo L
///                +---- feedback <--+          in ping-pong mode: from echo R
///
///     in R likewise, with the right line; in ping-pong mode its feedback comes from echo L
///
/// Kept: a change of time moves the read point at once, without a crossfade, which can be heard.
/// A time of more than 2972 ms, which the strip reaches only at a slow tempo, allocates longer
/// lines, which start silent. Two such changes must not run at the same time.
class CDSPDelay : public CDSPBase {
public:
    enum EParameter : int {
        kTime,         ///< ms
        kSync,         ///< half the ESync
        kFeedback,     ///< 0 to 1
        kPingPong,     ///< on from 0.5
        kDryLevel,     ///< linear
        kWetLevel,     ///< linear
        kTempo,        ///< beats per minute; no host parameter sets it
        kBeatsPerBar,  ///< no host parameter sets it
    };

    CDSPDelay();
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

    /// Twice parameter 1 without its fraction; any other number acts as kWholeBeat.
    enum ESync : std::int32_t { kFree, kHalfBeat, kWholeBeat };

private:
    void setDelay(std::uint32_t ms);
    void setBeat(float ms);
    void setSync(std::int32_t mode);
    void setTempo(float bpm);
    void setBeats(float beats);

    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames);

    TRelaxed<std::uint32_t> delayMs = 0;            // present time
    TRelaxed<std::uint32_t> freeDelayMs = 1000;     // used again once sync ends
    TRelaxed<std::uint32_t> lineCapacity = 131072;  // samples
    TRelaxed<float> delaySamples = 0.0f;            // from delayMs
    TRelaxed<float> feedback = 0.5f;
    TRelaxed<float> dryLevel = 1.0f;
    TRelaxed<float> wetLevel = 0.70710677f;
    TRelaxed<float> tempo = 120.0f;  // beats per minute
    TRelaxed<bool> pingPong = false;
    TRelaxed<std::int32_t> beatsPerBar = 4;
    TRelaxed<std::int32_t> syncMode = kFree;
    DelayLine leftLine{lineCapacity};
    DelayLine rightLine{lineCapacity};
    CResetRequest resetRequest;
};
