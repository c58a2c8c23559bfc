#pragma once

#include "corvel/audio/CAudioReader.h"
#include "corvel/audio/CResampler.h"
#include "corvel/audio/CSoundMeter.h"
#include "corvel/audio/Interleave.h"
#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/render/CAutomationPlayer.h"
#include "corvel/render/CStopwatch.h"
#include "corvel/render/Render.h"
#include "corvel/render/RenderLengths.h"
#include "corvel/render/TAutoTail.h"
#include "corvel/render/TRenderOutput.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace Tessitor::Tool {

/// The signal path of a render:
///
///     reader -> [resampler to stripRate] -> effect -> [resampler] -> [end of the tail] -> output
///
/// Each stage passes on the samples that it has ready. The effect and the resamplers may hold some
/// back; silence after the end of the input flushes them.
template <typename Sample>
class TRenderLoop {
public:
    /// @param effect  already started, at stripRate if the options ask for resampling.
    /// @param meterIn  receives the input.
    TRenderLoop(const SRenderJob &job, const SRenderOptions &options, CAudioReader &reader,
                CEffectInstance &effect, TRenderOutput<Sample> &output, CSoundMeter &meterIn,
                const std::optional<CAutomation> &automation);

    /// @param result  receives the number of frames.
    void run(SRenderResult &result, const RenderListener &listener);

private:
    using Samples = std::span<const Sample>;  // interleaved

    // Long enough for a system call to pay, short enough to stay in the cache on the whole path.
    static constexpr std::size_t chunkFrames = 16384;

    void feed(Samples samples);
    void process(Samples samples);
    void processBlock(Samples samples, Sample *out);
    void processAutomated(Samples samples, Sample *out);
    void deliver(Samples samples);
    void write(Samples samples);
    bool isDone() const;
    std::uint64_t countNonFinite(std::span<Sample> samples) const;
    static void stopIfInterrupted();

    CAudioReader &m_reader;
    CEffectInstance &m_effect;
    TRenderOutput<Sample> &m_output;
    CSoundMeter &m_meterIn;
    const std::size_t m_channelsIn, m_channelsOut;
    const std::size_t m_blockFrames, m_chunkFrames;
    const bool m_keepNan;
    const int m_rateIn, m_rateOut;
    const std::int64_t m_tailFrames;
    std::optional<CResampler> m_toStrip, m_fromStrip;
    std::optional<CAutomationPlayer> m_automation;
    CStopwatch m_effectTime;

    std::vector<Sample> m_chunk;      // one read from the file
    std::vector<Sample> m_processed;  // the effect's output for a chunk
    std::vector<Sample> m_inLeft, m_inRight, m_outLeft, m_outRight;  // one block

    std::size_t m_latencyLeft;  // frames of the effect's output still to be dropped
    static constexpr std::int64_t untilInputEnds = std::numeric_limits<std::int64_t>::max();
    std::int64_t m_framesDelivered = 0, m_framesWritten = 0;
    std::int64_t m_soundFrames = untilInputEnds;   // without the tail
    std::int64_t m_framesWanted = untilInputEnds;  // with it
    std::optional<TAutoTail<Sample>> m_autoTail;
};

// Definitions

template <typename Sample>
TRenderLoop<Sample>::TRenderLoop(const SRenderJob &job, const SRenderOptions &options,
                                 CAudioReader &reader, CEffectInstance &effect,
                                 TRenderOutput<Sample> &output, CSoundMeter &meterIn,
                                 const std::optional<CAutomation> &automation)
    : m_reader(reader), m_effect(effect), m_output(output), m_meterIn(meterIn),
      m_channelsIn(static_cast<std::size_t>(reader.channels())),
      m_channelsOut(static_cast<std::size_t>(output.channels())),
      m_blockFrames(static_cast<std::size_t>(options.blockSize)),
      // Whole blocks, so that only the last block of a file is shorter.
      m_chunkFrames(m_blockFrames * std::max<std::size_t>(1, chunkFrames / m_blockFrames)),
      m_keepNan(options.keepNan), m_rateIn(reader.sampleRate()), m_rateOut(output.sampleRate()),
      m_tailFrames(tailFrames(options, m_rateOut)), m_effectTime(options.timed),
      m_chunk(m_chunkFrames * m_channelsIn), m_inLeft(m_blockFrames), m_inRight(m_blockFrames),
      m_outLeft(m_blockFrames), m_outRight(m_blockFrames),
      m_latencyLeft(static_cast<std::size_t>(std::max(0, effect.record().initialDelay))) {
    if (options.resample && m_rateIn != stripRate)
        m_toStrip.emplace(nameOfInput(job.in), m_rateIn, stripRate, reader.channels());
    if (options.resample && m_rateOut != stripRate)
        m_fromStrip.emplace(nameOfInput(job.in), stripRate, m_rateOut, output.channels());
    if (options.tailAuto)
        m_autoTail.emplace(m_channelsOut, silenceFrames(options, m_rateOut));
    if (automation)
        m_automation.emplace(*automation, effect, options.resample ? stripRate : m_rateIn,
                             options.excerpt.startSeconds);
}

template <typename Sample>
void TRenderLoop<Sample>::run(SRenderResult &result, const RenderListener &listener) {
    while (const auto frames = static_cast<std::size_t>(
               m_reader.read(m_chunk.data(), static_cast<std::int64_t>(m_chunkFrames)))) {
        const std::span<Sample> samples(m_chunk.data(), frames * m_channelsIn);
        result.nonFiniteSamples += countNonFinite(samples);
        m_meterIn.add(samples.data(), frames);
        result.framesIn += static_cast<std::int64_t>(frames);
        feed(samples);
        listener(static_cast<double>(result.framesIn) / static_cast<double>(m_reader.frames()));
        stopIfInterrupted();
    }

    m_soundFrames = framesAtRate(result.framesIn, m_rateIn, m_rateOut);
    m_framesWanted = m_soundFrames + m_tailFrames;
    std::fill(m_chunk.begin(), m_chunk.end(), Sample(0));
    while (!isDone()) {
        const auto missing = static_cast<std::size_t>(m_framesWanted - m_framesDelivered);
        feed(Samples(m_chunk.data(), std::min(missing, m_chunkFrames) * m_channelsIn));
        stopIfInterrupted();
    }
    result.framesOut = m_framesWritten;
    if (result.openSeconds)
        result.effectSeconds = m_effectTime.seconds();
}

template <typename Sample>
void TRenderLoop<Sample>::feed(Samples samples) {
    process(m_toStrip ? m_toStrip->convert(samples) : samples);
}

template <typename Sample>
void TRenderLoop<Sample>::process(Samples samples) {
    const std::size_t frames = samples.size() / m_channelsIn;
    m_processed.resize(std::max(m_processed.size(), frames * m_channelsOut));
    for (std::size_t done = 0; done < frames; done += m_blockFrames) {
        const std::size_t length = std::min(m_blockFrames, frames - done);
        const Samples block = samples.subspan(done * m_channelsIn, length * m_channelsIn);
        Sample *const out = m_processed.data() + done * m_channelsOut;
        m_automation ? processAutomated(block, out) : processBlock(block, out);
    }

    const std::size_t dropped = std::min(m_latencyLeft, frames);
    m_latencyLeft -= dropped;
    const Samples processed(m_processed.data() + dropped * m_channelsOut,
                            (frames - dropped) * m_channelsOut);
    deliver(m_fromStrip ? m_fromStrip->convert(processed) : processed);
}

template <typename Sample>
void TRenderLoop<Sample>::processBlock(Samples samples, Sample *out) {
    const std::size_t frames = samples.size() / m_channelsIn;
    // An unconnected input is silent, and an unconnected output has no buffer.
    if (m_channelsIn == 2)
        deinterleave(samples.data(), frames, m_inLeft.data(), m_inRight.data());
    else
        std::copy(samples.begin(), samples.end(), m_inLeft.begin());
    Sample *ins[] = {m_inLeft.data(), m_inRight.data()};
    const bool isStereo = m_channelsIn == 2 || m_channelsOut == 2;
    Sample *outs[] = {m_outLeft.data(), isStereo ? m_outRight.data() : nullptr};
    m_effectTime.measure([&] { m_effect.process(ins, outs, static_cast<std::int32_t>(frames)); });
    if (m_channelsOut == 2)
        interleave(m_outLeft.data(), m_outRight.data(), frames, out);
    else if (isStereo)
        mixDown(m_outLeft.data(), m_outRight.data(), frames, out);
    else
        std::copy_n(m_outLeft.begin(), frames, out);
}

/// Splits a block where an automation has a point.
template <typename Sample>
void TRenderLoop<Sample>::processAutomated(Samples samples, Sample *out) {
    while (!samples.empty()) {
        const std::size_t frames = m_automation->startBlock(samples.size() / m_channelsIn);
        processBlock(samples.first(frames * m_channelsIn), out);
        samples = samples.subspan(frames * m_channelsIn);
        out += frames * m_channelsOut;
    }
}

template <typename Sample>
void TRenderLoop<Sample>::deliver(Samples samples) {
    const auto ready = static_cast<std::int64_t>(samples.size() / m_channelsOut);
    const std::int64_t frames = std::min(ready, m_framesWanted - m_framesDelivered);
    const std::int64_t sound =
        std::clamp<std::int64_t>(m_soundFrames - m_framesDelivered, 0, frames);
    write(samples.first(static_cast<std::size_t>(sound) * m_channelsOut));
    const Samples tail = samples.subspan(static_cast<std::size_t>(sound) * m_channelsOut,
                                         static_cast<std::size_t>(frames - sound) * m_channelsOut);
    write(m_autoTail ? m_autoTail->pass(tail) : tail);
    m_framesDelivered += frames;
}

template <typename Sample>
void TRenderLoop<Sample>::write(Samples samples) {
    const std::size_t frames = samples.size() / m_channelsOut;
    m_output.write(samples.data(), frames);
    m_framesWritten += static_cast<std::int64_t>(frames);
}

template <typename Sample>
bool TRenderLoop<Sample>::isDone() const {
    return m_framesDelivered == m_framesWanted || (m_autoTail && m_autoTail->isOver());
}

/// Also replaces them with 0, unless they are to be kept: one of them would spoil the rest of the
/// file.
template <typename Sample>
std::uint64_t TRenderLoop<Sample>::countNonFinite(std::span<Sample> samples) const {
    std::uint64_t count = 0;
    for (Sample &sample : samples) {
        const bool finite = std::isfinite(sample);
        count += finite ? 0 : 1;
        if (!m_keepNan)
            sample = finite ? sample : Sample(0);
    }
    return count;
}

template <typename Sample>
void TRenderLoop<Sample>::stopIfInterrupted() {
    if (isInterrupted())
        throw CInterruption();
}

}  // namespace Tessitor::Tool
