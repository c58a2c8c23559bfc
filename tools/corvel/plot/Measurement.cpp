#include "corvel/plot/Measurement.h"

#include "corvel/console/Text.h"

#include <cmath>

namespace Tessitor::Tool {

namespace {

std::string nameOf(CEffectInstance &effect) {
    const std::string name = effect.text(effGetEffectName);
    return name.empty() ? effect.fileName() : name;
}

std::string chainText(const CEffectSettings &settings) {
    if (!settings.chain())
        return "";
    std::string text;
    for (const int slot : *settings.chain())
        text += (text.empty() ? "" : ", ") + std::string(moduleLabel(slot));
    return text.empty() ? "none" : text;
}

std::string changesText(const CEffectSettings &settings) {
    std::string text;
    for (const CEffectSettings::SAssignment &assignment : settings.assignments())
        text += (text.empty() ? "" : ", ") + assignment.name + " " + assignment.display;
    return text;
}

}  // namespace

SMeasurement measure(const CEffectLibrary &library, const CEffectSettings &settings,
                     CEffectInstance &trial, const SMeasurementOptions &options) {
    const CSubject subject(library, settings, options.tempo);
    return {nameOf(trial),
            trial.record().version,
            settings.programName(),
            chainText(settings),
            changesText(settings),
            options,
            measureResponse(subject, options.level),
            measureLevelCurve(subject, options.tone),
            measureDecay(subject, options.level)};
}

bool differ(const BothSides<double> &sides) {
    constexpr double audible = 0.1;  // dB
    for (std::size_t i = 0; i < sides[0].size(); ++i) {
        const double left = sides[0][i], right = sides[1][i];
        if (std::isfinite(left) != std::isfinite(right) || std::abs(left - right) >= audible)
            return true;
    }
    return false;
}

std::string describeTail(const SDecay &decay) {
    switch (decay.tail) {
    case ETail::None:
        return "no tail";
    case ETail::Decays:
        return decay.fit ? "RT60 " + decimal(decay.fit->reverberation, 2) + " s"
                         : "tail ends at once";
    case ETail::Persists:
        return "still sounding after " + std::to_string(longestTail) + " s";
    default:
        return "nothing comes out at this level";
    }
}

}  // namespace Tessitor::Tool
