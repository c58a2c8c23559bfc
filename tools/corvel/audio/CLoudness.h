#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace Tessitor::Tool {

/// What CLoudness measures. A part is missing if there is nothing to measure.
struct SLoudness {
    std::optional<double> integrated;  // LUFS; needs 0.4 s of sound that is not silent
    std::optional<double> truePeak;    // dBTP; needs a sample that is not 0
};

/// What CLoudness measures besides the integrated loudness. Each costs time.
struct SLoudnessParts {
    bool truePeak = false;
    bool blocks = false;
    bool shortTerm = false;
};

/// Loudness by EBU R 128, measured with libebur128. A mono sound is one channel, so the same sound
/// is 3 LU louder in stereo. Sound with a sample that is infinite or not a number has no loudness,
/// and neither has sound below 16 Hz of sample rate.
class CLoudness {
public:
    CLoudness(int sampleRate, int channels, const SLoudnessParts &parts);
    ~CLoudness();
    CLoudness(CLoudness &&) noexcept;
    CLoudness &operator=(CLoudness &&) noexcept;

    /// @param samples  interleaved.
    void add(const float *samples, std::size_t frames);
    void add(const double *samples, std::size_t frames);

    /// @return the result for all frames. Add no more after that.
    SLoudness finish();

    /// @return LUFS of the blocks of 400 ms that the integrated loudness is made of, one every
    ///         100 ms; minus infinity for silence. Empty unless asked for.
    const std::vector<double> &blocks() const { return m_blocks; }

    /// @return LUFS of the last 3 s at every 100 ms; at the start, of what there is, from 400 ms
    ///         on. Minus infinity for silence. Empty unless asked for.
    const std::vector<float> &shortTerm() const { return m_shortTerm; }

private:
    struct SMeter;

    template <typename Sample>
    void addAll(const Sample *samples, std::size_t frames);
    void handleHop();
    double loudnessOfLast(unsigned long milliseconds) const;
    std::optional<double> truePeak() const;

    std::unique_ptr<SMeter> m_meter;
    std::size_t m_channels;
    SLoudnessParts m_parts;
    std::size_t m_hopFrames;  // 100 ms
    std::size_t m_framesToHop;
    std::size_t m_hops = 0;  // completed
    bool m_finite = true;
    std::vector<double> m_blocks;
    std::vector<float> m_shortTerm;
};

}  // namespace Tessitor::Tool
