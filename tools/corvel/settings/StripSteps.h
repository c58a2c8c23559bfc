#pragma once

#include "corvel/effect/CEffectInstance.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Tessitor::Tool {

// The sound of the channel strip depends on the order of changes and on earlier values. These
// functions find changes after which it sounds as asked, whatever the order in which it was asked.

/// A change of a parameter.
struct SStep {
    std::int32_t index;
    float value;  // normalised

    bool operator==(const SStep &) const = default;
};

/// @param effect  a channel strip.
bool isDelaySynchronised(CEffectInstance &effect);

/// @return true for the delay's time and its synchronisation, of which only one is heard.
bool isDelayTiming(std::int32_t index);

/// @param asked           at most one value for each parameter.
/// @param isSynchronised  whether the delay follows the tempo before the changes.
std::vector<SStep> stepsToHear(std::vector<SStep> asked, bool isSynchronised);

/// @return a note if a time for the delay and its synchronisation exclude each other; empty if not.
std::string noteOnDelay(const std::vector<SStep> &asked, bool isSynchronised);

}  // namespace Tessitor::Tool
