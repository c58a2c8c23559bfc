#pragma once

#include "dspclasses/support/Signals.h"

#include <cmath>
#include <complex>

/// @param frames  after which the impulse response has died away.
/// @return 20 log10 |H| at a frequency in Hz, from the impulse response at 44.1 kHz.
template <typename Module>
double decibelsAt(Module &module, double hz, int frames = 20000) {
    module.reset();
    TStereo<double> impulse(frames);
    impulse.left(0) = 1.0;
    TStereo<double> response = render(module, impulse, 4096);
    const double w = 2.0 * 3.141592653589793 * hz / 44100.0;
    std::complex<double> sum = 0.0;
    for (int n = 0; n < frames; ++n)
        sum += response.left(n) * std::polar(1.0, -w * n);
    return 20.0 * std::log10(std::abs(sum));
}
