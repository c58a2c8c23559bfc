#include "corvel/batch/LoudnessReport.h"

#include "corvel/console/Text.h"

#include <functional>

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;

Json numberOrNull(const std::optional<double> &number) {
    return number ? Json(*number) : Json();
}

// One line, for any number of files
std::vector<std::string> noteOn(const std::vector<SRenderOutcome> &outcomes,
                                const std::function<bool(const SRenderResult &)> &concerns,
                                const std::string &reason) {
    std::vector<std::string> names;
    for (const SRenderOutcome &outcome : outcomes)
        if (outcome.kind == EOutcome::Rendered && concerns(outcome.result))
            names.push_back(outcome.job.out.string());
    if (names.empty())
        return {};
    const std::string which =
        names.size() == 1 ? names.front() : std::to_string(names.size()) + " files";
    return {"note: " + which + ": " + reason};
}

}  // namespace

std::string describeLoudness(const SLoudness &loudness) {
    std::string text = loudness.integrated ? ", " + decimal(*loudness.integrated, 2) + " LUFS"
                                           : std::string(", no loudness");
    if (loudness.truePeak)
        text += ", true peak " + decimal(*loudness.truePeak, 2) + " dBTP";
    return text;
}

void addLoudness(Json &level, const SLoudness &loudness) {
    level["loudness"] = numberOrNull(loudness.integrated);
    level["truePeak"] = numberOrNull(loudness.truePeak);
}

std::vector<std::string> notesOnLoudness(const std::vector<SRenderOutcome> &outcomes,
                                         const SRenderOptions &options) {
    std::vector<std::string> lines;
    if (options.normalize) {
        const bool isPeak = options.normalize->unit == ELoudnessUnit::Dbtp;
        lines = noteOn(
            outcomes,
            [](const SRenderResult &result) { return result.gain && !result.gain->toTarget; },
            std::string("not normalised: silent") + (isPeak ? "" : ", shorter than 0.4 s") +
                " or not a number");
    }
    if (options.dither) {
        const auto more = noteOn(
            outcomes, [](const SRenderResult &result) { return !result.dithered; },
            "not dithered: only outputs of 8 and 16 bits need it");
        lines.insert(lines.end(), more.begin(), more.end());
    }
    return lines;
}

}  // namespace Tessitor::Tool
