#pragma once

#include "dspclasses/kernels/Denormals.h"
#include "values/TRelaxed.h"

/// One-pole smoother of one signal in single precision; a building block, not a module. A new one
/// holds its state at 0 whatever comes in, until setPole gives it a pole.
///
/// The setters may run on any thread. `state` belongs to the thread that ticks: clear() beside a
/// running tick() may be undone by it.
class CDSPOnePole final {
public:
    /// @return the next output, `gain` * sample + `pole` * last output; a denormal ends as 0.
    virtual float tick(float sample) {
        const float out = gain * sample + pole * state;
        state = flushDenormal(out);
        return state;
    }

    /// @param value  from 0, which lets the signal pass, to 1, which holds the state.
    void setPole(float value) {
        pole = value;
        gain = 1.0f - value;
    }
    float getPole() const { return pole; }
    float getGain() const { return gain; }

    /// The last output, for a kernel that holds it in a register over some frames.
    float getState() const { return state; }
    void setState(float value) { state = value; }

    void clear() { state = 0.0f; }

private:
    TRelaxed<float> state = 0.0f;
    TRelaxed<float> pole = 1.0f;
    TRelaxed<float> gain = 0.0f;  // 1 - pole
};
