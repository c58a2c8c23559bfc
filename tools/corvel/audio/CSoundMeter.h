#pragma once

#include "corvel/audio/CLevels.h"
#include "corvel/audio/CLoudness.h"
#include "corvel/audio/CWaveform.h"

#include <cstddef>
#include <optional>

namespace Tessitor::Tool {

/// What CSoundMeter measures besides the levels. Each takes longer than rendering.
struct SMeasurements {
    bool loudness = false;
    bool curves = false;  // for a picture; includes the loudness
};

/// Measures one side of a render.
class CSoundMeter {
public:
    CSoundMeter(int sampleRate, int channels, const SMeasurements &measurements)
        : m_sampleRate(sampleRate), m_channels(static_cast<std::size_t>(channels)) {
        if (measurements.loudness || measurements.curves) {
            m_loudness.emplace(sampleRate, channels,
                               SLoudnessParts{.truePeak = true,
                                              .blocks = false,
                                              .shortTerm = measurements.curves});
        }
        if (measurements.curves)
            m_waveform.emplace(channels);
    }

    /// @param samples  interleaved.
    template <typename Sample>
    void add(const Sample *samples, std::size_t frames) {
        m_frames += frames;
        m_levels.add(samples, frames * m_channels);
        if (m_loudness)
            m_loudness->add(samples, frames);
        if (m_waveform)
            m_waveform->add(samples, frames);
    }

    /// @return the loudness if it was measured. Add no more after that.
    std::optional<SLoudness> finishLoudness() {
        return m_loudness ? std::optional(m_loudness->finish()) : std::nullopt;
    }

    int sampleRate() const { return m_sampleRate; }
    double seconds() const { return static_cast<double>(m_frames) / m_sampleRate; }
    const CLevels &levels() const { return m_levels; }

    // If the curves are measured

    const CWaveform &waveform() const { return *m_waveform; }
    const std::vector<float> &shortTerm() const { return m_loudness->shortTerm(); }

private:
    int m_sampleRate;
    std::size_t m_channels;
    std::size_t m_frames = 0;
    CLevels m_levels;
    std::optional<CLoudness> m_loudness;
    std::optional<CWaveform> m_waveform;
};

}  // namespace Tessitor::Tool
