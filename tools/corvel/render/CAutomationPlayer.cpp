#include "corvel/render/CAutomationPlayer.h"

#include "corvel/settings/Chain.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

namespace {

std::int64_t frameAt(double seconds, double sampleRate) {
    constexpr double never = 9e15;  // still exact as a double
    return std::llround(std::clamp(seconds * sampleRate, -never, never));
}

}  // namespace

CAutomationPlayer::CAutomationPlayer(const CAutomation &automation, CEffectInstance &effect,
                                     double sampleRate, double startSeconds)
    : m_effect(effect), m_isStrip(hasChain(effect)) {
    for (const CAutomation::SLane &source : automation.lanes()) {
        SLane &lane = m_lanes.emplace_back();
        lane.source = &source;
        for (const CAutomation::SPoint &point : source.points)
            lane.frames.push_back(frameAt(point.seconds, sampleRate) -
                                  frameAt(startSeconds, sampleRate));
    }
}

std::size_t CAutomationPlayer::startBlock(std::size_t frames) {
    setValues();
    std::int64_t end = m_frame + static_cast<std::int64_t>(frames);
    for (const SLane &lane : m_lanes)
        if (lane.passed < lane.frames.size())
            end = std::min(end, lane.frames[lane.passed]);
    const auto length = static_cast<std::size_t>(end - m_frame);
    m_frame = end;
    return length;
}

void CAutomationPlayer::setValues() {
    const std::vector<SStep> asked = changes();
    if (asked.empty())
        return;
    // Each value is to sound as if it had been set at the start, whatever the way there.
    const auto steps = m_isStrip ? stepsToHear(asked, isDelaySynchronised(m_effect)) : asked;
    for (const SStep &step : steps)
        m_effect.setParameter(step.index, step.value);
}

std::vector<SStep> CAutomationPlayer::changes() {
    std::vector<SStep> changed, unchanged;
    for (SLane &lane : m_lanes) {
        while (lane.passed < lane.frames.size() && lane.frames[lane.passed] <= m_frame)
            ++lane.passed;
        const std::optional<float> value = lane.valueAt(m_frame);
        if (value)
            (value == lane.value ? unchanged : changed).push_back({lane.source->index, *value});
        lane.value = value;
    }
    // The time of the delay is heard or not depending on its synchronisation, so they go together.
    const auto isTiming = [](const SStep &step) { return isDelayTiming(step.index); };
    if (m_isStrip && std::any_of(changed.begin(), changed.end(), isTiming))
        std::copy_if(unchanged.begin(), unchanged.end(), std::back_inserter(changed), isTiming);
    return changed;
}

std::optional<float> CAutomationPlayer::SLane::valueAt(std::int64_t frame) const {
    if (passed == 0)
        return std::nullopt;
    const float from = source->points[passed - 1].value;
    if (source->isStepped || passed == frames.size())
        return from;
    const auto length = static_cast<double>(frames[passed] - frames[passed - 1]);
    const double share = static_cast<double>(frame - frames[passed - 1]) / length;
    const double to = source->points[passed].value;
    return static_cast<float>(from + (to - from) * share);
}

}  // namespace Tessitor::Tool
