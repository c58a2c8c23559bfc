#include "corvel/audio/CAudioReader.h"

#include "corvel/audio/Mp3Length.h"
#include "corvel/audio/OggLinks.h"
#include "corvel/audio/OutputFormat.h"
#include "corvel/audio/SoundChunk.h"
#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/console/Text.h"
#include "corvel/files/FileFacts.h"

#include <algorithm>
#include <string>
#include <type_traits>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

CAudioReader::CAudioReader(const fs::path &file, const std::optional<SRawFormat> &raw)
    : m_name(nameOfInput(file)), m_path(file) {
    if (isStandardStream(file))
        openStream(raw);
    else
        openFile();
    m_knowsLength = isBounded() && m_stream == nullptr;
}

void CAudioReader::openStream(const std::optional<SRawFormat> &raw) {
    m_stream = std::make_unique<CStreamedSound>();
    if (!raw && !m_stream->readWavHead()) {
        m_path = m_spool.emplace(*m_stream).path();
        m_stream.reset();
        return openFile();
    }
    m_file.reset(raw ? m_stream->openRaw(*raw, m_info) : m_stream->openWav(m_info));
    if (m_file == nullptr)
        fail("not a readable audio file");
    requireReadable();
}

void CAudioReader::openFile() {
    const std::string problem = whyNoFile(m_path);
    if (!problem.empty())
        fail(problem);
    // The decoder of MP3 would print a warning of its own.
    requireBytes(mp3BytesMissing(m_path));
    open();
    requireReadable();
    if ((m_info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_OGG)
        findLinks();
    else
        readPastUnknownLength();
}

void CAudioReader::open() {
    m_file.reset(sf_open(m_path.c_str(), SFM_READ, &m_info));
    if (m_file != nullptr)
        return;
    // libsndfile refuses an RF64 file without a length.
    readPastUnknownLength();
    if (m_file == nullptr)
        fail("not a readable audio file");
}

void CAudioReader::requireReadable() const {
    if (!isKnownContainer(m_info.format))
        fail("not a WAV, AIFF, FLAC, Ogg, MP3, W64, CAF or AU file");
    if (m_info.channels > 2)
        fail("has " + std::to_string(m_info.channels) +
             " channels; only mono and stereo can be rendered");
}

void CAudioReader::readPastUnknownLength() {
    const auto chunk = findSoundChunk(m_path);
    if (!chunk)
        return;
    requireBytes(bytesMissing(*chunk));
    if (chunk->promised || m_openPart != nullptr)
        return;
    const auto length = correctedField(*chunk);
    if (!length)
        fail("longer than 4 GiB, but its header does not say how long");
    m_info = openPart({0, chunk->sound + chunk->bytesThere, chunk->field, *length});
}

void CAudioReader::requireBytes(std::uint64_t missing) const {
    if (missing > 0)
        fail("truncated, " + std::to_string(missing) + " bytes of audio are missing");
}

void CAudioReader::findLinks() {
    SOggLinks found = findOggLinks(m_path);
    if (!found.complete)
        fail("truncated, the end of the audio is missing");
    if (found.links.size() < 2)
        return;
    std::reverse(found.links.begin(), found.links.end());
    std::int64_t frames = 0;
    for (const SOggLinks::SLink &link : found.links) {
        m_partsLeft.push_back({link.begin, link.end});
        const SF_INFO info = openPart(m_partsLeft.back());
        if (info.samplerate != m_info.samplerate || info.channels != m_info.channels)
            fail("changes its sample rate or its channels in the middle");
        frames += info.frames;
    }
    m_partsLeft.pop_back();
    m_info.frames = frames;
}

SF_INFO CAudioReader::openPart(const SFilePart &part) {
    SF_INFO info{};
    m_file.reset();
    m_openPart = std::make_unique<CPartOfFile>(m_path, part);
    m_file.reset(m_openPart->open(info));
    if (m_file == nullptr)
        fail("damaged");
    return info;
}

std::int64_t CAudioReader::read(float *samples, std::int64_t frames) {
    return readParts(samples, frames);
}

std::int64_t CAudioReader::read(double *samples, std::int64_t frames) {
    return readParts(samples, frames);
}

template <typename Sample>
std::int64_t CAudioReader::readParts(Sample *samples, std::int64_t frames) {
    frames = std::min(frames, m_end - m_framesRead);
    if (frames == 0)
        return 0;
    std::int64_t done = 0;
    for (;;) {
        Sample *const next = samples + done * channels();
        if constexpr (std::is_same_v<Sample, float>)
            done += sf_readf_float(m_file.get(), next, frames - done);
        else
            done += sf_readf_double(m_file.get(), next, frames - done);
        if (done == frames || m_partsLeft.empty())
            break;
        requireNoError();
        openPart(m_partsLeft.back());
        m_partsLeft.pop_back();
    }
    m_framesRead += done;
    if (done < frames)
        handleEnd();
    requireNoError();
    return done;
}

std::int64_t CAudioReader::frames() const {
    return m_info.frames == SF_COUNT_MAX ? SF_COUNT_MAX : std::min(m_info.frames, m_end) - m_start;
}

void CAudioReader::select(std::int64_t start, std::int64_t length) {
    if (start > 0 && m_knowsLength && start >= m_info.frames)
        failBeforeStart(m_info.frames);
    skip(start);
    m_start = start;
    m_end = length < SF_COUNT_MAX - start ? start + length : SF_COUNT_MAX;
}

// Only samples that are not compressed are found exactly without reading all before them.
void CAudioReader::skip(std::int64_t frames) {
    const bool isCompressed = (m_info.format & SF_FORMAT_SUBMASK) > SF_FORMAT_DOUBLE ||
                              (m_info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_FLAC;
    if (m_stream == nullptr && !isCompressed) {
        m_framesRead = sf_seek(m_file.get(), frames, SEEK_SET);
        return requireNoError();
    }
    constexpr std::int64_t mostAtOnce = 16384;
    std::vector<float> samples(static_cast<std::size_t>(mostAtOnce * channels()));
    while (m_framesRead < frames) {
        if (read(samples.data(), std::min(frames - m_framesRead, mostAtOnce)) == 0)
            failBeforeStart(m_framesRead);
        if (isInterrupted())
            throw CInterruption();
    }
}

void CAudioReader::handleEnd() {
    if (m_stream != nullptr)
        m_stream->input().drain();
    requireAllFrames();
    if (m_start > 0 && m_framesRead == m_start)
        failBeforeStart(m_framesRead);
}

void CAudioReader::requireAllFrames() {
    // SoX converts MP3 to a stream of about the length that it announces: three frames of MP3 may
    // be missing.
    const std::int64_t tolerance = m_stream != nullptr ? std::int64_t(3) * 1152 : 0;
    m_framesMissing = isBounded() ? m_info.frames - m_framesRead : 0;
    if (m_framesMissing > tolerance)
        fail("truncated or damaged, it ends after " + std::to_string(m_framesRead) + " of " +
             std::to_string(m_info.frames) + " frames");
}

void CAudioReader::requireNoError() const {
    if (m_stream != nullptr)
        m_stream->input().requireNoError();
    if (sf_error(m_file.get()) != SF_ERR_NO_ERROR)
        fail("damaged after " + std::to_string(m_framesRead) + " frames");
}

void CAudioReader::failBeforeStart(std::int64_t end) const {
    fail("lasts " + decimal(static_cast<double>(end) / sampleRate(), 3) +
         " seconds; --start leaves nothing of it");
}

void CAudioReader::fail(const std::string &reason) const {
    throw CJobError(m_name + ": " + reason);
}

}  // namespace Tessitor::Tool
