#pragma once

/// Coefficients of the first-order filters. [any thread] They cannot fail. Each costs a
/// transcendental function, so compute them when a parameter changes and not per sample.

/// Pole of a first-order high-pass:
///     y[n] = x[n] - x[n-1] + pole y[n-1],    H(z) = (1 - z^-1) / (1 - pole z^-1)
/// It is 3 dB down at a low cutoff, and less at a high one: 1.8 dB at 2000 Hz.
/// @param cutoff         Hz, 0 or above; not checked.
/// @param invSampleRate  seconds.
/// Source: matched z-transform of s / (s + 2 pi cutoff).
float highPassPole(float cutoff, float invSampleRate);

/// Coefficient c of a one-pole low-pass:
///     y[n] = y[n-1] + c (x[n] - y[n-1]),    H(z) = c / (1 - (1 - c) z^-1)
/// It is not 3 dB down at the crossover but at w' with cos w' = 2 - 2 cos w, where w is the
/// crossover in radians per sample. At 44.1 kHz, crossovers of 100 to 1500 Hz all split the bands
/// between 11025 and 10700 Hz, and one of 6400 Hz splits them at 4800 Hz.
/// @param crossover      Hz, below a sixth of the sample rate; at or above it the result is a NaN.
/// @param invSampleRate  seconds.
double bandSplitCoefficient(float crossover, float invSampleRate);
