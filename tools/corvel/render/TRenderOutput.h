#pragma once

#include "corvel/audio/CAudioWriter.h"
#include "corvel/audio/CSoundMeter.h"
#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/files/CScratchFile.h"
#include "corvel/render/OutputGain.h"
#include "corvel/render/Render.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Tessitor::Tool {

/// Where the sound of a render goes:
///
///     samples -> meter -> writer
///
/// or, if the whole sound must be known before the first sample can be written:
///
///     samples -> scratch file, loudness, range        until the render ends
///     scratch file -> gain -> meter -> writer         in finish()
template <typename Sample>
class TRenderOutput {
public:
    /// @param result  says the format.
    /// @param meter   receives what is written.
    TRenderOutput(const SRenderJob &job, const SRenderOptions &options, const SRenderResult &result,
                  CAudioWriter &writer, CSoundMeter &meter);

    int channels() const { return m_writer.channels(); }
    int sampleRate() const { return m_writer.sampleRate(); }

    /// @param samples  interleaved.
    void write(const Sample *samples, std::size_t frames);

    /// @return true if nothing is written before finish().
    bool hasTwoPasses() const { return m_scratch.has_value(); }

    /// @param listener  receives the progress of the second pass, from 0 to 1.
    /// @return the gain that the sound got, if the options may ask for one.
    std::optional<SOutputGain> finish(const RenderListener &listener);

private:
    void deliver(const Sample *samples, std::size_t frames);
    void deliverScratch(double factor, const RenderListener &listener);
    SOutputGain gain();

    static constexpr std::size_t chunkFrames = 16384;

    CAudioWriter &m_writer;
    CSoundMeter &m_meter;
    const std::size_t m_channels;
    const std::optional<SLoudnessTarget> m_target;
    const bool m_keepsHeadroom;
    const bool m_failsEarly;  // since standard output cannot be taken back
    const int m_bits;
    const bool m_dithered;

    // Of the first pass, if there are two
    std::optional<CScratchFile> m_scratch;
    std::optional<CLoudness> m_loudness;
    SSampleRange m_range;
    std::size_t m_framesStored = 0;
};

// Definitions

template <typename Sample>
TRenderOutput<Sample>::TRenderOutput(const SRenderJob &job, const SRenderOptions &options,
                                     const SRenderResult &result, CAudioWriter &writer,
                                     CSoundMeter &meter)
    : m_writer(writer), m_meter(meter), m_channels(static_cast<std::size_t>(writer.channels())),
      m_target(options.normalize),
      m_keepsHeadroom(options.clip == EClip::Headroom && integerBits(result.formatOut) != 0),
      m_failsEarly(options.clip == EClip::Fail && isStandardStream(job.out) &&
                   integerBits(result.formatOut) != 0),
      m_bits(integerBits(result.formatOut)), m_dithered(result.dithered) {
    if (m_target || m_keepsHeadroom || m_failsEarly)
        m_scratch.emplace(job.out);
    if (m_target)
        m_loudness.emplace(writer.sampleRate(), writer.channels(), partsFor(*m_target));
}

template <typename Sample>
void TRenderOutput<Sample>::write(const Sample *samples, std::size_t frames) {
    if (!m_scratch) {
        deliver(samples, frames);
        return;
    }
    m_scratch->write(samples, frames * m_channels * sizeof(Sample));
    m_framesStored += frames;
    m_range.add(samples, frames * m_channels);
    if (m_loudness)
        m_loudness->add(samples, frames);
}

template <typename Sample>
void TRenderOutput<Sample>::deliver(const Sample *samples, std::size_t frames) {
    m_meter.add(samples, frames);
    m_writer.write(samples, static_cast<std::int64_t>(frames));
}

template <typename Sample>
std::optional<SOutputGain> TRenderOutput<Sample>::finish(const RenderListener &listener) {
    if (!m_scratch)
        return {};
    const SOutputGain result = gain();
    if (m_failsEarly && result.factor > factorToFullScale(m_range, m_bits, m_dithered))
        throw CJobError("standard output: it would clip, so nothing was written; --clip headroom "
                        "turns it down");
    deliverScratch(result.factor, listener);
    if (!m_target && !m_keepsHeadroom)
        return {};
    return result;
}

template <typename Sample>
SOutputGain TRenderOutput<Sample>::gain() {
    SOutputGain result;
    if (m_target)
        result.toTarget = factorToTarget(*m_target, *m_loudness);
    result.factor = result.toTarget.value_or(1.0);
    if (m_keepsHeadroom)
        result.factor = std::min(result.factor, factorToFullScale(m_range, m_bits, m_dithered));
    return result;
}

template <typename Sample>
void TRenderOutput<Sample>::deliverScratch(double factor, const RenderListener &listener) {
    std::vector<Sample> samples(chunkFrames * m_channels);
    std::size_t delivered = 0;
    m_scratch->rewind();
    while (const std::size_t bytes =
               m_scratch->read(samples.data(), samples.size() * sizeof(Sample))) {
        const std::size_t count = bytes / sizeof(Sample);
        for (std::size_t i = 0; i < count; ++i)
            samples[i] = static_cast<Sample>(samples[i] * factor);
        deliver(samples.data(), count / m_channels);
        delivered += count / m_channels;
        listener(static_cast<double>(delivered) / static_cast<double>(m_framesStored));
        if (isInterrupted())
            throw CInterruption();
    }
}

}  // namespace Tessitor::Tool
