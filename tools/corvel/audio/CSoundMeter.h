#pragma once

#include "corvel/audio/CLevels.h"
#include "corvel/audio/CLoudness.h"

#include <cstddef>
#include <optional>

namespace Tessitor::Tool {

/// Measures one side of a render.
class CSoundMeter {
public:
    /// @param parts  nothing to leave out the loudness, which takes longer than rendering.
    CSoundMeter(int sampleRate, int channels, const std::optional<SLoudnessParts> &parts)
        : m_channels(static_cast<std::size_t>(channels)) {
        if (parts)
            m_loudness.emplace(sampleRate, channels, *parts);
    }

    template <typename Sample>
    void add(const Sample *samples, std::size_t frames) {
        m_levels.add(samples, frames * m_channels);
        if (m_loudness)
            m_loudness->add(samples, frames);
    }

    const CLevels &levels() const { return m_levels; }

    /// @return the loudness if it was measured. Add no more after that.
    std::optional<SLoudness> finishLoudness() {
        return m_loudness ? std::optional(m_loudness->finish()) : std::nullopt;
    }

private:
    std::size_t m_channels;
    CLevels m_levels;
    std::optional<CLoudness> m_loudness;
};

}  // namespace Tessitor::Tool
