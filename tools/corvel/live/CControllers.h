#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "corvel/settings/StripSteps.h"

#include <array>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Which MIDI controllers set which parameters. A controller's 0 to 127 is the normalised 0 to 1.
/// As with --set, a channel strip is led to the value through the steps after which it is heard.
class CControllers {
public:
    /// @param texts  "21=InGain". A controller may set several parameters.
    /// @throws CCallError if a text cannot be read or the effect has no such parameter.
    CControllers(const std::vector<std::string> &texts, CEffectInstance &effect);

    bool isAnySetBy(int controller) const { return !at(controller).empty(); }

    /// [any thread] @return false if setting a parameter of this controller makes the effect
    /// allocate memory, which is nothing for the audio thread.
    bool canSetOnAudioThread(int controller) const;

    /// Sets the parameters of a controller. [any thread] Allocates nothing.
    void apply(int controller, int value, CEffectInstance &effect) const;

private:
    static constexpr std::size_t valueCount = 128;
    using Steps = std::array<std::vector<SStep>, valueCount>;  // by the controller's value
    struct STarget {
        std::int32_t parameter;
        Steps steps;
        Steps stepsIfSynchronised;  // if the delay of the strip follows the tempo
    };

    void add(const std::string &text, CEffectInstance &effect);
    const std::vector<STarget> &at(int controller) const {
        return m_targets[static_cast<std::size_t>(controller)];
    }

    std::array<std::vector<STarget>, 128> m_targets;  // by controller
    bool m_isStrip;
};

}  // namespace Tessitor::Tool
