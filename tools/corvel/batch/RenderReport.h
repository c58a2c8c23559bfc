#pragma once

#include "corvel/render/Render.h"
#include "corvel/settings/CEffectSettings.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace Tessitor::Tool {

enum class EOutcome { Interrupted, Rendered, Skipped, Failed, Planned };

/// The outcome of one job.
struct SRenderOutcome {
    SRenderJob job;
    EOutcome kind = EOutcome::Interrupted;
    SRenderResult result;  // if rendered
    std::string error;     // if failed
};

/// @return a report on a successful job, in several lines.
std::string describe(const SRenderOutcome &outcome, const CEffectSettings &settings,
                     const SRenderOptions &options);

/// @return more lines for such a report: how the file was processed and where the time went.
std::string describeProcessing(const SRenderResult &result, const SRenderOptions &options,
                               const CEffectLibrary &library);

/// @return warnings about one file for the user, one line each.
std::vector<std::string> warnings(const SRenderOutcome &outcome, const SRenderOptions &options);

/// @return notes on all files for the user, one line each.
std::vector<std::string> notes(const std::vector<SRenderOutcome> &outcomes,
                               const SRenderOptions &options);

/// @return how many of several files were rendered, skipped and failed.
std::string summary(const std::vector<SRenderOutcome> &outcomes);

std::size_t count(const std::vector<SRenderOutcome> &outcomes, EOutcome kind);

/// @return an outcome with the settings. Levels are in dBFS, and null for silence.
nlohmann::ordered_json toJson(const SRenderOutcome &outcome, const CEffectSettings &settings,
                              const CEffectLibrary &library);

}  // namespace Tessitor::Tool
