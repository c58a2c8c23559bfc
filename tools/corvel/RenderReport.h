#pragma once

#include "corvel/CEffectSettings.h"
#include "corvel/Render.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// How one job ended: with a result, or with an error and no result.
struct SRenderOutcome {
    SRenderJob job;
    SRenderResult result;
    std::string error;  // empty if there is a result
};

/// Some lines for people about a job that has a result.
std::string describe(const SRenderOutcome &outcome, const CEffectSettings &settings);

/// What the user has to be told beside the result, one line each.
std::vector<std::string> remarks(const SRenderOutcome &outcome, const SRenderOptions &options);

/// A whole call for programs. Levels are in dBFS, and null for silence.
nlohmann::ordered_json toJson(const std::vector<SRenderOutcome> &outcomes,
                              const CEffectSettings &settings, const CEffectLibrary &library);

}  // namespace Tessitor::Tool
