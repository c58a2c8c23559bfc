#include "corvel/audio/CPipedSound.h"

#include "corvel/audio/OutputFormat.h"
#include "corvel/audio/WavLengths.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "platform/StandardStreams.h"

#include <system_error>

namespace Tessitor::Tool {

CPipedSound::CPipedSound(std::optional<std::int64_t> frames) : m_frames(frames) {}

SNDFILE *CPipedSound::open(SF_INFO &info) {
    static SF_VIRTUAL_IO calls = {
        [](void *sound) { return static_cast<CPipedSound *>(sound)->m_length; },
        [](sf_count_t offset, int whence, void *sound) {
            return static_cast<CPipedSound *>(sound)->seek(offset, whence);
        },
        [](void *, sf_count_t, void *) { return sf_count_t(0); },
        [](const void *bytes, sf_count_t count, void *sound) {
            return static_cast<CPipedSound *>(sound)->write(static_cast<const char *>(bytes),
                                                            count);
        },
        [](void *sound) { return static_cast<CPipedSound *>(sound)->m_position; }};
    m_holdsHead = isWav(info.format);
    // The types up to this number are not compressed.
    if ((info.format & SF_FORMAT_SUBMASK) > SF_FORMAT_DOUBLE)
        m_frames.reset();
    m_frameBytes = static_cast<std::uint64_t>(bytesPerSample(info.format)) *
                   static_cast<std::uint64_t>(info.channels);
    return sf_open_virtual(&calls, SFM_WRITE, &info, this);
}

sf_count_t CPipedSound::seek(sf_count_t offset, int whence) {
    const sf_count_t from = whence == SEEK_CUR ? m_position : whence == SEEK_END ? m_length : 0;
    m_position = from + offset;
    return m_position;
}

sf_count_t CPipedSound::write(const char *bytes, sf_count_t count) {
    const auto size = static_cast<std::size_t>(count);
    if (m_holdsHead && m_position == 0) {
        m_head.assign(bytes, size);
    } else if (m_position == m_length) {
        sendHead();
        send(bytes, size);
    }  // else libsndfile completes what was sent long ago
    m_position += count;
    m_length = std::max(m_length, m_position);
    return m_ended || m_error != 0 ? 0 : count;
}

void CPipedSound::sendHead() {
    if (!m_holdsHead)
        return;
    m_holdsHead = false;
    std::optional<std::uint64_t> soundBytes;
    if (m_frames)
        soundBytes = static_cast<std::uint64_t>(*m_frames) * m_frameBytes;
    const std::string head = withWavLengths(m_head, soundBytes, m_frameBytes);
    send(head.data(), head.size());
}

void CPipedSound::send(const char *bytes, std::size_t count) {
    // A signal just before the wait does not end it.
    constexpr int longestWait = 100;  // ms
    while (count > 0 && !m_ended && m_error == 0 && !isInterrupted()) {
        const SStreamStep step = writeStandardOutput(bytes, count, longestWait);
        bytes += step.bytes;
        count -= step.bytes;
        m_ended = step.result == SStreamStep::Ended;
        m_error = step.error;
    }
}

void CPipedSound::finish() {
    sendHead();
}

void CPipedSound::requireNoError() const {
    if (m_ended || isInterrupted())
        throw CInterruption();
    if (m_error != 0)
        throw CJobError("standard output: cannot be written (" +
                        std::system_category().message(m_error) + ")");
}

}  // namespace Tessitor::Tool
