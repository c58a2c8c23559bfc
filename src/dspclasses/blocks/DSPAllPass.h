#pragma once

#include <memory>

/// Schroeder all-pass: keeps the level of every frequency and spreads the signal over time. A new
/// one delays by 8 samples.
///
///             w                                    H(z) = (c + z^-N) / (1 + c z^-N)
///     x --(+)----+-------- c --------(+)--> y
///        - ^     |                    ^            c  coefficient
///          |     +--> delay by N --+--+            N  delayLength, samples
///          |                       | d
///          +---------- c ----------+
///
/// The audio thread ticks; setDelayLength replaces and clears the samples that it works on, so the
/// caller must hold the same lock for both.
class DSPAllPass {
public:
    DSPAllPass();

    /// Sets the delay and clears the samples. Allocates if it is longer than any before.
    /// @param length  samples; asserts that it is not 0. Kept: a negative one acts as 1.
    void setDelayLength(int length);

    void setCoefficient(float value) { coefficient = value; }

    float tick(float sample);

    /// Ticks `count` samples in place.
    void run(float *samples, int count);

    /// Silences the whole buffer and sets the position to 0; the length stays.
    void clear();

private:
    int capacity = 8;     // samples allocated
    int delayLength = 8;  // samples in use
    int position = 0;
    float coefficient = 0.0f;
    std::unique_ptr<float[]> buffer;
};
