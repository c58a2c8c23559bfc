#pragma once

#include "dspclasses/support/Signals.h"

/// Noise shaped like speech: low-passed, in syllables of a fifth of a second that rise and fall by
/// some 40 dB, over a noise floor like that of a room. No sample is zero, and every threshold is
/// crossed.
template <typename Sample>
TStereo<Sample> makeSpeech(std::uint64_t seed, int frames) {
    CRandom random(seed);
    TStereo<Sample> speech(frames);
    for (auto &channel : speech.channels) {
        double lowPassed = 0.0;
        for (std::size_t i = 0; i < channel.size(); ++i) {
            const double syllable = std::sin(3.141592653589793 * static_cast<double>(i) / 8192.0);
            const double level = linearFromDb(-46.0 + 40.0 * syllable * syllable);
            lowPassed += 0.25 * (random.real(-1.0, 1.0) - lowPassed);
            channel[i] = static_cast<Sample>(level * lowPassed + random.real(1e-5, 2e-5));
        }
    }
    return speech;
}
