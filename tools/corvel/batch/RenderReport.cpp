#include "corvel/batch/RenderReport.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/batch/LoudnessReport.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;

std::string describeFile(const std::string &name, int sampleRate, int channels, int format) {
    return name + " (" + std::to_string(sampleRate) + " Hz, " +
           (channels == 1 ? "mono" : "stereo") + ", " + describeFormat(format) + ")";
}

std::string twoDigits(std::int64_t number) {
    std::string text = std::to_string(number);
    return text.insert(0, number < 10 ? 1 : 0, '0');
}

// Minutes, seconds and milliseconds; from an hour up, hours, minutes and seconds
std::string describeDuration(double seconds) {
    constexpr std::int64_t minute = 60, hour = 60 * minute;
    const std::int64_t whole = std::llround(seconds);
    if (whole >= hour)
        return std::to_string(whole / hour) + ":" + twoDigits(whole / minute % minute) + ":" +
               twoDigits(whole % minute);
    const auto milliseconds = std::llround(seconds * 1000.0);
    const double beyondMinute = static_cast<double>(milliseconds % 60000) / 1000.0;
    return std::to_string(milliseconds / 60000) + (beyondMinute < 10.0 ? ":0" : ":") +
           decimal(beyondMinute, 3);
}

std::string counted(std::uint64_t number, const std::string &thing) {
    return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

std::string describeLevels(const CLevels &levels, const std::optional<SLoudness> &loudness) {
    return "peak " + decimal(decibels(levels.peak()), 2) + " dBFS, RMS " +
           decimal(decibels(levels.rms()), 2) + " dBFS" +
           (loudness ? describeLoudness(*loudness) : "");
}

std::string describeChain(const Chain &chain) {
    std::string text;
    for (const int slot : chain)
        text += (text.empty() ? "" : ", ") + std::string(moduleLabel(slot));
    return text.empty() ? "none" : text;
}

Json numberOrNull(double number) {
    return std::isfinite(number) ? Json(number) : Json();
}

Json toJson(const CLevels &levels, const std::optional<SLoudness> &loudness) {
    Json json = {{"peak", numberOrNull(decibels(levels.peak()))},
                 {"rms", numberOrNull(decibels(levels.rms()))}};
    if (loudness)
        addLoudness(json, *loudness);
    return json;
}

const char *statusOf(EOutcome kind) {
    switch (kind) {
    case EOutcome::Rendered:
        return "rendered";
    case EOutcome::Skipped:
        return "skipped";
    case EOutcome::Failed:
        return "failed";
    case EOutcome::Planned:
        return "planned";
    case EOutcome::Interrupted:
        break;
    }
    return "interrupted";
}

void addSettings(Json &json, const CEffectSettings &settings, const CEffectLibrary &library) {
    json["effect"] = library.file().string();
    json["program"] = settings.programName();
    if (settings.chain()) {
        json["chain"] = Json::array();
        for (const int slot : *settings.chain())
            json["chain"].push_back(moduleLabel(slot));
    }
    json["set"] = Json::object();
    for (const auto &assignment : settings.assignments())
        json["set"][assignment.name] = assignment.display;
    if (settings.automation())
        json["automate"] = settings.automation()->file();
}

void addResult(Json &json, const SRenderResult &result) {
    json["sampleRate"] = result.sampleRate;
    json["sampleRateOut"] = result.sampleRateOut;
    json["channelsIn"] = result.channelsIn;
    json["channelsOut"] = result.channelsOut;
    json["formatIn"] = describeFormat(result.formatIn);
    json["formatOut"] = describeFormat(result.formatOut);
    json["framesIn"] = result.framesIn;
    json["framesOut"] = result.framesOut;
    json["seconds"] = result.seconds();
    json["levelIn"] = toJson(result.levelsIn, result.loudnessIn);
    json["levelOut"] = toJson(result.levelsOut, result.loudnessOut);
    if (result.gain)
        json["gain"] = result.gain->decibels();
    json["clippedSamples"] = result.clippedSamples;
    json["nonFiniteSamples"] = result.nonFiniteSamples;
    json["renderSeconds"] = result.renderSeconds;
    json["timesRealTime"] = result.timesRealTime();
    if (result.openSeconds) {
        json["openSeconds"] = *result.openSeconds;
        json["effectSeconds"] = *result.effectSeconds;
    }
}

}  // namespace

std::string describe(const SRenderOutcome &outcome, const CEffectSettings &settings,
                     const SRenderOptions &options) {
    const SRenderResult &result = outcome.result;
    std::vector<std::vector<std::string>> rows = {
        {"in", describeFile(nameOfInput(outcome.job.in), result.sampleRate, result.channelsIn,
                            result.formatIn)},
        {"out", describeFile(nameOfOutput(outcome.job.out), result.sampleRateOut,
                             result.channelsOut, result.formatOut)},
        {"duration", describeDuration(result.seconds())},
        {"program", settings.programName()}};
    if (settings.chain())
        rows.push_back({"chain", describeChain(*settings.chain())});
    for (const auto &assignment : settings.assignments())
        rows.push_back({"set", assignment.name + " = " + assignment.display});
    if (settings.automation())
        rows.push_back({"automate", settings.automation()->file()});
    rows.push_back({"level in", describeLevels(result.levelsIn, result.loudnessIn)});
    if (result.gain)
        rows.push_back({"gain", describe(*result.gain, options.normalize)});
    rows.push_back({"level out", describeLevels(result.levelsOut, result.loudnessOut)});
    rows.push_back({"speed", decimal(result.timesRealTime(), 1) + " times real time"});
    return inColumns(rows);
}

std::string describeProcessing(const SRenderResult &result, const SRenderOptions &options,
                               const CEffectLibrary &library) {
    const int rate = options.resample ? stripRate : result.sampleRate;
    const double effect = result.effectSeconds.value_or(0.0);
    return inColumns(
        {{"effect", library.file().string()},
         {"processed", "at " + std::to_string(rate) + " Hz and " + decimal(options.tempo, 2) +
                           " bpm in blocks of " + counted(options.blockSize, "frame") + ", " +
                           (options.doublePrecision ? "double" : "single") + " precision, " +
                           decimal(options.tailSeconds, 1) + " s tail"},
         {"time", "effect opened in " + decimal(result.openSeconds.value_or(0.0) * 1e3, 1) +
                      " ms, ran for " + decimal(effect, 3) + " s of " +
                      decimal(result.renderSeconds, 3) + " s (" +
                      decimal(100.0 * effect / result.renderSeconds, 0) + "%)"}});
}

std::vector<std::string> warnings(const SRenderOutcome &outcome, const SRenderOptions &options) {
    const SRenderResult &result = outcome.result;
    std::vector<std::string> lines;
    if (result.nonFiniteSamples > 0) {
        lines.push_back("warning: " + nameOfInput(outcome.job.in) + ": " +
                        counted(result.nonFiniteSamples, "sample") + " infinite or not a number, " +
                        (options.keepNan ? "kept" : "rendered as 0; --keep-nan keeps them"));
    }
    if (result.framesMissing > 0) {
        lines.push_back("warning: " + nameOfInput(outcome.job.in) + ": ended " +
                        counted(static_cast<std::uint64_t>(result.framesMissing), "frame") +
                        " before the length in its header");
    }
    if (result.clippedSamples > 0)
        lines.push_back("warning: " + nameOfOutput(outcome.job.out) + ": " +
                        counted(result.clippedSamples, "sample") + " clipped");
    return lines;
}

std::vector<std::string> notes(const std::vector<SRenderOutcome> &outcomes,
                               const SRenderOptions &options) {
    std::vector<const SRenderOutcome *> others;
    for (const SRenderOutcome &outcome : outcomes)
        if (outcome.kind == EOutcome::Rendered && outcome.result.sampleRate != stripRate)
            others.push_back(&outcome);
    if (others.empty() || options.resample)
        return {};
    const std::string reason = ", but the strip is tuned for 44100 Hz; --resample converts";
    if (others.size() == 1)
        return {"note: " + nameOfInput(others.front()->job.in) + ": " +
                std::to_string(others.front()->result.sampleRate) + " Hz" + reason};
    return {"note: " + std::to_string(others.size()) + " files have another sample rate" + reason};
}

std::size_t count(const std::vector<SRenderOutcome> &outcomes, EOutcome kind) {
    return static_cast<std::size_t>(
        std::count_if(outcomes.begin(), outcomes.end(),
                      [&](const SRenderOutcome &outcome) { return outcome.kind == kind; }));
}

std::string summary(const std::vector<SRenderOutcome> &outcomes) {
    std::string text = std::to_string(count(outcomes, EOutcome::Rendered)) + " of " +
                       std::to_string(outcomes.size()) + " files rendered";
    if (const std::size_t skipped = count(outcomes, EOutcome::Skipped))
        text += ", " + std::to_string(skipped) + " skipped";
    if (const std::size_t failed = count(outcomes, EOutcome::Failed))
        text += ", " + std::to_string(failed) + " failed";
    return text;
}

Json toJson(const SRenderOutcome &outcome, const CEffectSettings &settings,
            const CEffectLibrary &library) {
    Json json = {{"in", outcome.job.in.string()},
                 {"out", outcome.job.out.string()},
                 {"status", statusOf(outcome.kind)}};
    if (outcome.kind == EOutcome::Failed)
        json["error"] = outcome.error;
    addSettings(json, settings, library);
    if (outcome.kind == EOutcome::Rendered)
        addResult(json, outcome.result);
    return json;
}

}  // namespace Tessitor::Tool
