#pragma once

#include "corvel/settings/CAutomation.h"
#include "corvel/settings/StripSteps.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Tessitor::Tool {

/// Moves the parameters of an instance as an automation says: exactly at its points, and between
/// two points once per block on a straight line of normalised values. Before the first point of a
/// parameter its value is left alone, and after the last point it stays.
class CAutomationPlayer {
public:
    /// @param sampleRate    that the effect runs at, Hz.
    /// @param startSeconds  the time of the first frame.
    CAutomationPlayer(const CAutomation &automation, CEffectInstance &effect, double sampleRate,
                      double startSeconds = 0.0);

    /// Sets the values for the start of the next block.
    /// @param frames  how long the block would be; at least 1.
    /// @return how many of these frames to process before the next call: up to the next point.
    std::size_t startBlock(std::size_t frames);

private:
    struct SLane {
        const CAutomation::SLane *source;
        std::vector<std::int64_t> frames;  // of the points
        std::size_t passed = 0;            // points
        std::optional<float> value;        // that was set last

        std::optional<float> valueAt(std::int64_t frame) const;
    };

    void setValues();
    std::vector<SStep> changes();

    CEffectInstance &m_effect;
    const bool m_isStrip;
    std::vector<SLane> m_lanes;
    std::int64_t m_frame = 0;  // of the effect's input
};

}  // namespace Tessitor::Tool
