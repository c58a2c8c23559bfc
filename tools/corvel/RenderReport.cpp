#include "corvel/RenderReport.h"

#include "corvel/Text.h"

#include <cmath>

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;

std::string describeFile(const std::filesystem::path &file, const SRenderResult &result,
                         int channels, int format) {
    return file.string() + " (" + std::to_string(result.sampleRate) + " Hz, " +
           (channels == 1 ? "mono" : "stereo") + ", " + describeFormat(format) + ")";
}

std::string describeDuration(double seconds) {
    const auto milliseconds = std::llround(seconds * 1000.0);
    const double beyondMinute = static_cast<double>(milliseconds % 60000) / 1000.0;
    return std::to_string(milliseconds / 60000) + (beyondMinute < 10.0 ? ":0" : ":") +
           decimal(beyondMinute, 3);
}

std::string describeLevels(const CLevels &levels) {
    return "peak " + decimal(decibels(levels.peak()), 2) + " dBFS, RMS " +
           decimal(decibels(levels.rms()), 2) + " dBFS";
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

Json toJson(const CLevels &levels) {
    return {{"peak", numberOrNull(decibels(levels.peak()))},
            {"rms", numberOrNull(decibels(levels.rms()))}};
}

Json toJson(const SRenderOutcome &outcome) {
    Json json = {{"in", outcome.job.in.string()}, {"out", outcome.job.out.string()}};
    if (!outcome.error.empty()) {
        json["error"] = outcome.error;
        return json;
    }
    const SRenderResult &result = outcome.result;
    json["sampleRate"] = result.sampleRate;
    json["channelsIn"] = result.channelsIn;
    json["channelsOut"] = result.channelsOut;
    json["formatIn"] = describeFormat(result.formatIn);
    json["formatOut"] = describeFormat(result.formatOut);
    json["framesIn"] = result.framesIn;
    json["framesOut"] = result.framesOut;
    json["seconds"] = result.seconds();
    json["levelIn"] = toJson(result.levelsIn);
    json["levelOut"] = toJson(result.levelsOut);
    json["clippedSamples"] = result.clippedSamples;
    json["renderSeconds"] = result.renderSeconds;
    json["timesRealTime"] = result.timesRealTime();
    return json;
}

}  // namespace

std::string describe(const SRenderOutcome &outcome, const CEffectSettings &settings) {
    const SRenderResult &result = outcome.result;
    std::vector<std::vector<std::string>> rows = {
        {"in", describeFile(outcome.job.in, result, result.channelsIn, result.formatIn)},
        {"out", describeFile(outcome.job.out, result, result.channelsOut, result.formatOut)},
        {"duration", describeDuration(result.seconds())},
        {"program", settings.programName()}};
    if (settings.chain())
        rows.push_back({"chain", describeChain(*settings.chain())});
    for (const auto &assignment : settings.assignments())
        rows.push_back({"set", assignment.name + " = " + assignment.display});
    rows.push_back({"level in", describeLevels(result.levelsIn)});
    rows.push_back({"level out", describeLevels(result.levelsOut)});
    rows.push_back({"speed", decimal(result.timesRealTime(), 1) + " times real time"});
    return inColumns(rows);
}

std::vector<std::string> remarks(const SRenderOutcome &outcome, const SRenderOptions &options) {
    const SRenderResult &result = outcome.result;
    std::vector<std::string> lines;
    if (result.sampleRate != stripRate && !options.resample) {
        lines.push_back("note: " + outcome.job.in.string() + ": " +
                        std::to_string(result.sampleRate) +
                        " Hz, but the strip is tuned for 44100 Hz; --resample converts");
    }
    if (result.clippedSamples > 0)
        lines.push_back("warning: " + outcome.job.out.string() + ": " +
                        std::to_string(result.clippedSamples) + " samples clipped");
    return lines;
}

Json toJson(const std::vector<SRenderOutcome> &outcomes, const CEffectSettings &settings,
            const CEffectLibrary &library) {
    Json json = {{"effect", library.file().string()}, {"program", settings.programName()}};
    if (settings.chain()) {
        json["chain"] = Json::array();
        for (const int slot : *settings.chain())
            json["chain"].push_back(moduleLabel(slot));
    }
    json["set"] = Json::object();
    for (const auto &assignment : settings.assignments())
        json["set"][assignment.name] = assignment.display;
    json["files"] = Json::array();
    for (const SRenderOutcome &outcome : outcomes)
        json["files"].push_back(toJson(outcome));
    return json;
}

}  // namespace Tessitor::Tool
