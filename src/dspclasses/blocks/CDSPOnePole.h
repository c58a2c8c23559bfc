#pragma once

#include "dspclasses/kernels/Denormals.h"
#include "values/TRelaxed.h"

/// One-pole low-pass of one signal in single precision; a building block, not a module.
///
///     x -- gain --(+)----------+--> y      H(z) = (1 - pole) / (1 - pole z^-1)
///                  ^           |
///                  |           |           gain at 0 Hz: 1
///                  +-- pole -- z^-1        at half the sample rate: (1 - pole) / (1 + pole)
///
/// The pole of a new filter is 1: it outputs 0 until setPole is called.
///
/// The setters may run on any thread. `state` belongs to the thread that ticks: a tick that runs at
/// the same time as clear() may undo it.
class CDSPOnePole final {
public:
    /// @return the next output, `gain` * sample + `pole` * last output; 0 for a denormal.
    /// Kept: virtual, although nothing derives from this class.
    virtual float tick(float sample) {
        const float out = gain * sample + pole * state;
        state = flushDenormal(out);
        return state;
    }

    /// @param value  from 0, which outputs the input, to 1, which holds the last output.
    void setPole(float value) {
        pole = value;
        gain = 1.0f - value;
    }
    float getPole() const { return pole; }
    float getGain() const { return gain; }

    /// The last output, for a kernel that keeps it in a register while it runs some frames.
    float getState() const { return state; }
    void setState(float value) { state = value; }

    void clear() { state = 0.0f; }

private:
    TRelaxed<float> state = 0.0f;
    TRelaxed<float> pole = 1.0f;
    TRelaxed<float> gain = 0.0f;  // 1 - pole
};
