#pragma once

#include "corvel/batch/RenderReport.h"

#include <string>
#include <vector>

namespace Tessitor::Tool {

// What a report says about loudness, gain and dither

/// @return what follows the levels: ", -16.02 LUFS, true peak -1.20 dBTP".
std::string describeLoudness(const SLoudness &loudness);

/// Adds the fields "loudness" and "truePeak", null where there is none.
void addLoudness(nlohmann::ordered_json &level, const SLoudness &loudness);

/// @return notes on files that were not normalised or not dithered.
std::vector<std::string> notesOnLoudness(const std::vector<SRenderOutcome> &outcomes,
                                         const SRenderOptions &options);

}  // namespace Tessitor::Tool
