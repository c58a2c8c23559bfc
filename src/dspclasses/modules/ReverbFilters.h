#pragma once

#include "dspclasses/blocks/CDSPOnePole.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/modules/ReverbGeometry.h"
#include "values/TRelaxed.h"

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

/// The gains and the dampers of the four lines for a group of frames, a line in each lane.
class CWallTicker {
public:
    CWallTicker(const TRelaxed<float> *lineGains, const CDSPOnePole *dampers)
        : lineGain(perLine([=](int k) { return lineGains[k].load(); })),
          gain(perLine([=](int k) { return dampers[k].getGain(); })),
          pole(perLine([=](int k) { return dampers[k].getPole(); })),
          state(perLine([=](int k) { return dampers[k].getState(); })) {}

    /// @param ends  the outputs of the lines.
    SFloats4 tick(SFloats4 ends) {
        state = flushDenormal(gain * (ends * lineGain) + pole * state);
        return state;
    }

    void storeState(CDSPOnePole *dampers) const {
        float states[reverbLines];
        storeFour(states, state);
        for (int k = 0; k < reverbLines; ++k)
            dampers[k].setState(states[k]);
    }

private:
    const SFloats4 lineGain, gain, pole;
    SFloats4 state;
};
