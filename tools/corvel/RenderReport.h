#pragma once

#include "corvel/CEffectSettings.h"
#include "corvel/Render.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// The outcome of one job: a result or an error.
struct SRenderOutcome {
    SRenderJob job;
    SRenderResult result;
    std::string error;  // empty if there is a result
};

/// @return a report on a successful job, in several lines.
std::string describe(const SRenderOutcome &outcome, const CEffectSettings &settings);

/// @return warnings for the user, one line each.
std::vector<std::string> remarks(const SRenderOutcome &outcome, const SRenderOptions &options);

/// @return all outcomes of a command. Levels are in dBFS, and null for silence.
nlohmann::ordered_json toJson(const std::vector<SRenderOutcome> &outcomes,
                              const CEffectSettings &settings, const CEffectLibrary &library);

}  // namespace Tessitor::Tool
