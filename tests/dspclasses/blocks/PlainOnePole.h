#pragma once

#include "dspclasses/support/PlainBits.h"

class CPlainOnePole {
public:
    float tick(float sample) {
        const float out = gain * sample + pole * state;
        if (exponentIsZero(out)) {
            state = 0.0f;
            return 0.0f;
        }
        state = out;
        return out;
    }
    void setPole(float value) {
        pole = value;
        gain = 1.0f - value;
    }
    void clear() { state = 0.0f; }

private:
    float state = 0.0f;
    float pole = 1.0f;
    float gain = 0.0f;
};
