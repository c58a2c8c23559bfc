#include "corvel/render/OutputGain.h"

#include "corvel/audio/CLevels.h"
#include "corvel/audio/GatedLoudness.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessitor::Tool {

namespace {

double factorOf(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

std::string inDecibels(double factor) {
    const double gain = decibels(factor);
    return std::string(gain < 0.0 ? "" : "+").append(decimal(gain, 2)).append(" dB");
}

}  // namespace

EClip clipFromText(const std::string &text) {
    const std::pair<const char *, EClip> choices[] = {
        {"warn", EClip::Warn}, {"fail", EClip::Fail}, {"headroom", EClip::Headroom}};
    for (const auto &[name, choice] : choices)
        if (equalInAnyCapitals(text, name))
            return choice;
    throw CCallError("--clip: " + inQuotes(text) + " is not one of warn, fail and headroom");
}

double SOutputGain::decibels() const {
    return Tool::decibels(factor);
}

SLoudnessParts partsFor(const SLoudnessTarget &target) {
    SLoudnessParts parts;
    parts.truePeak = target.unit == ELoudnessUnit::Dbtp;
    parts.blocks = target.unit == ELoudnessUnit::Lufs;
    return parts;
}

std::string describe(const SOutputGain &gain, const std::optional<SLoudnessTarget> &target) {
    if (!gain.toTarget && !gain.isLowered())
        return "none";
    std::string text = inDecibels(gain.factor);
    if (gain.isLowered())
        text += ", so that nothing clips";
    if (!gain.toTarget)
        return text;
    if (gain.isLowered())
        return text + "; " + toText(*target) + " would need " + inDecibels(*gain.toTarget);
    return text + ", to " + toText(*target);
}

std::optional<double> factorToTarget(const SLoudnessTarget &target, CLoudness &sound) {
    const SLoudness measured = sound.finish();
    std::optional<double> gain;
    if (target.unit == ELoudnessUnit::Dbtp && measured.truePeak)
        gain = target.value - *measured.truePeak;
    if (target.unit == ELoudnessUnit::Lufs && measured.integrated)
        gain = gainForLoudness(sound.blocks(), target.value);
    return gain ? std::optional(factorOf(*gain)) : std::nullopt;
}

double factorToFullScale(const SSampleRange &range, int bits, bool dithered) {
    // Singles have steps of 2^-24 below full scale: more bits would be rounded up to it.
    const double step = std::ldexp(1.0, 1 - std::min(bits, 25));
    const double noise = dithered ? step : 0.0;
    double factor = std::numeric_limits<double>::infinity();
    if (range.highest > 0.0)
        factor = std::min(factor, (1.0 - step - noise) / range.highest);
    if (range.lowest < 0.0)
        factor = std::min(factor, (noise - 1.0) / range.lowest);
    return factor;
}

}  // namespace Tessitor::Tool
