#pragma once

#include <memory>

/// Schroeder all-pass over a ring of delayLength samples. A new one delays by 8.
/// The audio thread ticks; setDelayLength replaces and clears what it ticks on, so the two need a
/// lock around them.
class DSPAllPass {
public:
    DSPAllPass();

    /// Starts anew, silent, with this delay. Allocates when it is longer than any before.
    /// @param length  samples; asserts that it is not 0. A negative one acts as 1.
    void setDelayLength(int length);

    void setCoefficient(float value) { coefficient = value; }

    float tick(float sample);

    /// tick of `count` samples, in place.
    void run(float *samples, int count);

    /// Silences the whole buffer and goes back to its beginning; the length stays.
    void clear();

private:
    int capacity = 8;     // samples allocated
    int delayLength = 8;  // samples in use
    int position = 0;
    float coefficient = 0.0f;
    std::unique_ptr<float[]> buffer;
};
