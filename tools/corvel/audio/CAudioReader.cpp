#include "corvel/audio/CAudioReader.h"

#include "corvel/audio/OggLinks.h"
#include "corvel/audio/OutputFormat.h"
#include "corvel/audio/SoundChunk.h"
#include "corvel/console/Errors.h"
#include "corvel/files/FileFacts.h"

#include <algorithm>
#include <string>
#include <type_traits>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

CAudioReader::CAudioReader(const fs::path &file) : m_path(file) {
    const std::string problem = whyNoFile(file);
    if (!problem.empty())
        fail(problem);
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
        fail("not a WAV, AIFF, FLAC or Ogg file");
    if (m_info.channels > 2)
        fail("has " + std::to_string(m_info.channels) +
             " channels; only mono and stereo can be rendered");
}

void CAudioReader::readPastUnknownLength() {
    const auto chunk = findSoundChunk(m_path);
    if (!chunk)
        return;
    if (const std::uint64_t missing = bytesMissing(*chunk))
        fail("truncated, " + std::to_string(missing) + " bytes of audio are missing");
    if (chunk->promised || m_openPart != nullptr)
        return;
    const auto length = correctedField(*chunk);
    if (!length)
        fail("longer than 4 GiB, but its header does not say how long");
    m_info = openPart({0, chunk->sound + chunk->bytesThere, chunk->field, *length});
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
        requireAllFrames();
    requireNoError();
    return done;
}

void CAudioReader::requireAllFrames() const {
    if (knowsLength() && m_framesRead < m_info.frames)
        fail("truncated or damaged, it ends after " + std::to_string(m_framesRead) + " of " +
             std::to_string(m_info.frames) + " frames");
}

void CAudioReader::requireNoError() const {
    if (sf_error(m_file.get()) != SF_ERR_NO_ERROR)
        fail("damaged after " + std::to_string(m_framesRead) + " frames");
}

void CAudioReader::fail(const std::string &reason) const {
    throw CJobError(m_path.string() + ": " + reason);
}

}  // namespace Tessitor::Tool
