#pragma once

#include "corvel/audio/CLoudness.h"
#include "corvel/render/LoudnessTarget.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>

namespace Tessitor::Tool {

/// What happens to samples beyond full scale in formats of integers.
enum class EClip { Warn, Fail, Headroom };

/// @param text  "warn", "fail" or "headroom".
/// @throws CCallError if it is anything else.
EClip clipFromText(const std::string &text);

/// The gain that the whole output gets.
struct SOutputGain {
    double factor = 1.0;             // applied
    std::optional<double> toTarget;  // the factor that the target needs; none without a loudness

    double decibels() const;
    bool isLowered() const { return factor < toTarget.value_or(1.0); }  ///< so that nothing clips
};

/// @return the gain for the user: "+4.20 dB, to -16 LUFS".
/// @param target  if one was asked for.
std::string describe(const SOutputGain &gain, const std::optional<SLoudnessTarget> &target);

/// The range of samples. Those that are infinite or not a number do not count.
struct SSampleRange {
    double lowest = 0.0, highest = 0.0;

    template <typename Sample>
    void add(const Sample *samples, std::size_t count) {
        constexpr Sample most = std::numeric_limits<Sample>::max();
        for (std::size_t i = 0; i < count; ++i) {
            if (samples[i] > highest && samples[i] <= most)
                highest = samples[i];
            if (samples[i] < lowest && samples[i] >= -most)
                lowest = samples[i];
        }
    }
};

/// @return what of a sound must be measured to bring it to a target.
SLoudnessParts partsFor(const SLoudnessTarget &target);

/// @return the factor that brings a sound to a target, or nothing if it has no loudness.
/// @param sound  measured with partsFor(target).
std::optional<double> factorToTarget(const SLoudnessTarget &target, CLoudness &sound);

/// @return the largest factor with which nothing clips; infinite for silence.
/// @param bits      of the integers that are written.
/// @param dithered  true if dither is added after the gain.
double factorToFullScale(const SSampleRange &range, int bits, bool dithered);

}  // namespace Tessitor::Tool
