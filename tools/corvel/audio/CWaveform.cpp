#include "corvel/audio/CWaveform.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

double CWaveform::SBin::rms() const {
    return samples > 0 ? std::sqrt(squares / static_cast<double>(samples)) : 0.0;
}

void CWaveform::add(const float *samples, std::size_t frames) {
    addAll(samples, frames);
}

void CWaveform::add(const double *samples, std::size_t frames) {
    addAll(samples, frames);
}

template <typename Sample>
void CWaveform::addAll(const Sample *samples, std::size_t frames) {
    while (frames > 0) {
        if (m_framesLeft == 0) {
            if (m_bins.size() == mostBins)
                halve();
            m_bins.emplace_back();
            m_framesLeft = m_binFrames;
        }
        const std::size_t part = std::min(frames, m_framesLeft);
        SBin &bin = m_bins.back();
        for (const Sample *end = samples + part * m_channels; samples != end; ++samples) {
            if (!std::isfinite(*samples))
                continue;
            const double sample = *samples;
            bin.lowest = std::min(bin.lowest, sample);
            bin.highest = std::max(bin.highest, sample);
            bin.squares += sample * sample;
            ++bin.samples;
        }
        m_framesLeft -= part;
        frames -= part;
    }
}

// Joins each two bins. All are full when this is called.
void CWaveform::halve() {
    static_assert(mostBins % 2 == 0);
    for (std::size_t i = 0; i < mostBins / 2; ++i) {
        const SBin first = m_bins[2 * i], second = m_bins[2 * i + 1];
        m_bins[i] = {std::min(first.lowest, second.lowest), std::max(first.highest, second.highest),
                     first.squares + second.squares, first.samples + second.samples};
    }
    m_bins.resize(mostBins / 2);
    m_binFrames *= 2;
}

}  // namespace Tessitor::Tool
