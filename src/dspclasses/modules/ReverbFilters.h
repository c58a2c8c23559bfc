#pragma once

#include "dspclasses/blocks/CDSPOnePole.h"
#include "dspclasses/blocks/DelayLine.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/modules/ReverbGeometry.h"
#include "values/TRelaxed.h"

#include <array>

/// One value per line of the network, from valueOf(line).
template <typename ValueOf>
inline SFloats4 perLine(ValueOf valueOf) {
    static_assert(reverbLines == 4);
    return {Floats4{valueOf(0), valueOf(1), valueOf(2), valueOf(3)}};
}

/// The input filter for a group of frames: CDSPOnePole::tick with its state in a register.
class CInputTicker {
public:
    explicit CInputTicker(const CDSPOnePole &filter)
        : gain(filter.getGain()), pole(filter.getPole()), state(filter.getState()) {}

    float tick(float sample) {
        state = gain * sample + pole * state;
        // A branch rather than flushDenormal, so that the next tick need not wait for the test.
        if (isDenormalOrZero(state))
            state = 0.0f;
        return state;
    }

    void storeState(CDSPOnePole &filter) const { filter.setState(state); }

private:
    const float gain, pole;
    float state;
};

/// The ends of the four lines, with their gains and dampers, for a group of frames. A line in each
/// lane.
class CWallTicker {
public:
    CWallTicker(const std::array<DelayLine::SRun, reverbLines> &lineEnds,
                const TRelaxed<float> *lineGains, const CDSPOnePole *dampers)
        : ends(lineEnds), fraction(perLine([&](int k) { return lineEnds[k].fraction; })),
          lineGain(perLine([=](int k) { return lineGains[k].load(); })),
          gain(perLine([=](int k) { return dampers[k].getGain(); })),
          pole(perLine([=](int k) { return dampers[k].getPole(); })),
          older(perLine([&](int k) { return lineEnds[k].newer[-1]; })),
          state(perLine([=](int k) { return dampers[k].getState(); })) {}

    /// @param frame  from 0, in order.
    SFloats4 tick(int frame) {
        const SFloats4 newer = perLine([&](int k) { return ends[k].newer[frame]; });
        const SFloats4 end = (older - newer) * fraction + newer;
        older = newer;
        state = flushDenormal(gain * (end * lineGain) + pole * state);
        return state;
    }

    void storeState(CDSPOnePole *dampers) const {
        float states[reverbLines];
        storeFour(states, state);
        for (int k = 0; k < reverbLines; ++k)
            dampers[k].setState(states[k]);
    }

private:
    const std::array<DelayLine::SRun, reverbLines> ends;
    const SFloats4 fraction, lineGain, gain, pole;
    SFloats4 older, state;
};
