#pragma once

#include <cstddef>
#include <vector>

namespace Tessitor::Tool {

/// The outline of a sound of any length, in few enough bins to draw. All channels together.
class CWaveform {
public:
    static constexpr std::size_t mostBins = 1000;

    struct SBin {
        double lowest = 0.0, highest = 0.0;  // of its samples, and 0
        double squares = 0.0;                // sum of the squared samples
        std::size_t samples = 0;

        double rms() const;
    };

    explicit CWaveform(int channels) : m_channels(static_cast<std::size_t>(channels)) {}

    /// @param samples  interleaved. Those that are infinite or not a number are left out.
    void add(const float *samples, std::size_t frames);
    void add(const double *samples, std::size_t frames);

    /// @return up to mostBins; none for no sound.
    const std::vector<SBin> &bins() const { return m_bins; }
    /// @return frames in each bin but the last, which may have fewer.
    std::size_t binFrames() const { return m_binFrames; }

private:
    template <typename Sample>
    void addAll(const Sample *samples, std::size_t frames);
    void halve();

    std::size_t m_channels;
    std::size_t m_binFrames = 16;
    std::size_t m_framesLeft = 0;  // until the last bin is full
    std::vector<SBin> m_bins;
};

}  // namespace Tessitor::Tool
