#pragma once

#include "corvel/plot/CSubject.h"

#include <optional>
#include <vector>

namespace Tessitor::Tool {

enum class ETail {
    None,      // 50 ms after the sound, next to nothing is left
    Decays,    //
    Persists,  // it does not fade in the time that is measured
    Unknown,   // the effect was silent during the sound, or its output is not finite
};

/// A straight line through a part of a decay.
struct SDecayFit {
    double from, to;       // the part, dB
    double start;          // dB of the line at 0 s
    double reverberation;  // seconds for 60 dB: RT60
};

/// How the sound of an effect fades after its input has stopped.
struct SDecay {
    ETail tail = ETail::Unknown;
    /// Energy that is still to come, both outputs together, in dB of all after the end of the input
    /// (Schroeder's backward integration). Empty unless the tail decays.
    std::vector<double> seconds{}, energies{};
    double tailLevel = 0.0;          // dB, the loudest 50 ms of the tail against those before it
    std::optional<SDecayFit> fit{};  // none if it persists, or ends too soon for a line
    std::optional<double> secondsTo60{};  // until the curve is below -60 dB
};

inline constexpr int longestTail = 20;  // seconds that are measured

/// Plays three seconds of pink noise into both inputs, then silence.
/// @param level  of the noise, dB RMS.
SDecay measureDecay(const CSubject &subject, double level);

}  // namespace Tessitor::Tool
