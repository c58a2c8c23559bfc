#include "corvel/settings/StripSteps.h"

#include "dspclasses/parameters/ParameterIds.h"

#include <algorithm>
#include <optional>

namespace Tessitor::Tool {

namespace {

bool isSynchronising(float value) {
    return value >= 0.5f;
}

std::optional<float> valueFor(const std::vector<SStep> &asked, std::int32_t index) {
    for (const SStep &step : asked)
        if (step.index == index)
            return step.value;
    return std::nullopt;
}

// The pan skips a position that is as far from the middle as the last one on the same side. A new
// pan counts as being at both ends, so without a position in between a hard pan does nothing.
void addPan(std::vector<SStep> &steps, float value) {
    constexpr float middle = 0.5f;
    if (value < middle)
        steps.push_back({kPan, value == 0.25f ? 0.375f : 0.25f});
    else if (value > middle)
        steps.push_back({kPan, value == 0.75f ? 0.625f : 0.75f});
    steps.push_back({kPan, value});
}

// A new strip takes the setting of some modules, such as 0.5 octaves, for the normalised value, and
// setting that value does nothing until there was another one.
bool isTakenForNormalised(std::int32_t index) {
    return index == kParaBW || index == kMod1Dpth || index == kMod2Dpth;
}

// A synchronised delay takes a new time until the tempo changes, and leaving the synchronisation
// restores the earlier time. So the setting that should be heard comes last.
void addDelay(std::vector<SStep> &steps, std::optional<float> time, std::optional<float> sync,
              bool isSynchronised) {
    const bool synchronise = sync ? isSynchronising(*sync) : !time && isSynchronised;
    if (!synchronise && (sync || isSynchronised))
        steps.push_back({kDlySync, sync.value_or(0.0f)});
    if (time)
        steps.push_back({kDlyTime, *time});
    if (synchronise)
        steps.insert(steps.end(), {{kDlySync, 0.0f}, {kDlySync, *sync}});
}

}  // namespace

bool isDelaySynchronised(CEffectInstance &effect) {
    return isSynchronising(effect.parameter(kDlySync));
}

bool isDelayTiming(std::int32_t index) {
    return index == kDlyTime || index == kDlySync;
}

std::vector<SStep> stepsToHear(std::vector<SStep> asked, bool isSynchronised) {
    std::sort(asked.begin(), asked.end(),
              [](const SStep &a, const SStep &b) { return a.index < b.index; });
    const auto time = valueFor(asked, kDlyTime), sync = valueFor(asked, kDlySync);
    std::vector<SStep> steps;
    for (const SStep &step : asked) {
        if (isDelayTiming(step.index))
            continue;
        if (step.index == kPan)
            addPan(steps, step.value);
        else if (isTakenForNormalised(step.index))
            steps.insert(steps.end(), {{step.index, step.value == 0.0f ? 1.0f : 0.0f}, step});
        else
            steps.push_back(step);
    }
    if (time || sync)
        addDelay(steps, time, sync, isSynchronised);
    return steps;
}

std::string noteOnDelay(const std::vector<SStep> &asked, bool isSynchronised) {
    const auto time = valueFor(asked, kDlyTime), sync = valueFor(asked, kDlySync);
    if (time && sync && isSynchronising(*sync))
        return "note: --set DlyTime: has no effect, since DlySync makes the delay follow the tempo";
    if (time && !sync && isSynchronised)
        return "note: --set DlyTime: DlySync is set to ms, since in this program the delay follows "
               "the tempo";
    return "";
}

}  // namespace Tessitor::Tool
