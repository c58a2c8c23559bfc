#include "corvel/audio/CAudioWriter.h"

#include "corvel/audio/OutputFormat.h"
#include "corvel/audio/Quantise.h"
#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace Tessitor::Tool {

namespace {

std::int64_t writeFrames(SNDFILE *file, const float *samples, std::int64_t frames) {
    return sf_writef_float(file, samples, frames);
}

std::int64_t writeFrames(SNDFILE *file, const double *samples, std::int64_t frames) {
    return sf_writef_double(file, samples, frames);
}

// @return -1 if the file is not audio or its length is unknown.
std::int64_t framesIn(const std::filesystem::path &file) {
    SF_INFO info{};
    const std::unique_ptr<SNDFILE, SSoundFileCloser> opened(sf_open(file.c_str(), SFM_READ, &info));
    return opened != nullptr && info.frames != SF_COUNT_MAX ? info.frames : -1;
}

}  // namespace

CAudioWriter::CAudioWriter(const std::filesystem::path &file, EExisting existing, int format,
                           int sampleRate, int channels, std::optional<std::int64_t> frames)
    : m_place(file), m_format(format), m_sampleRate(sampleRate), m_channels(channels),
      m_bits(integerBits(format)) {
    SF_INFO info{};
    info.format = format;
    info.samplerate = sampleRate;
    info.channels = channels;
    if (isStandardStream(file))
        m_file.reset(m_pipe.emplace(frames).open(info));
    else
        m_file.reset(sf_open(m_pending.emplace(file, existing).path().c_str(), SFM_WRITE, &info));
    if (m_file == nullptr)
        fail(describeFormat(format) + ", does not support " + std::to_string(sampleRate) + " Hz");
    // For WAV without a length: if it stays below 4 GiB, it becomes plain WAV again.
    if ((format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RF64 && !frames)
        sf_command(m_file.get(), SFC_RF64_AUTO_DOWNGRADE, nullptr, SF_TRUE);
    // The peak chunk contains the time of day. With it, each run would write a different file.
    sf_command(m_file.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
}

bool CAudioWriter::dither() {
    if (m_bits == 0 || m_bits > 16)
        return false;
    m_dither.emplace(m_bits);
    return true;
}

void CAudioWriter::write(const float *samples, std::int64_t frames) {
    writeAll(samples, frames);
}

void CAudioWriter::write(const double *samples, std::int64_t frames) {
    writeAll(samples, frames);
}

template <typename Sample>
void CAudioWriter::writeAll(const Sample *samples, std::int64_t frames) {
    std::int64_t written = 0;
    errno = 0;
    if (m_bits == 0) {
        written = writeFrames(m_file.get(), samples, frames);
    } else {
        quantiseAll(samples, static_cast<std::size_t>(frames * m_channels));
        written = sf_writef_int(m_file.get(), m_integers.data(), frames);
    }
    if (m_pipe)
        m_pipe->requireNoError();
    if (written != frames)
        failWith(errno);
    m_frames += frames;
}

template <typename Sample>
void CAudioWriter::quantiseAll(const Sample *samples, std::size_t count) {
    m_integers.resize(std::max(m_integers.size(), count));
    if (m_dither) {
        m_dithered.resize(std::max(m_dithered.size(), count));
        m_dither->add(samples, count, m_dithered.data());
        m_clipped += quantise(m_dithered.data(), count, m_bits, m_integers.data());
    } else {
        m_clipped += quantise(samples, count, m_bits, m_integers.data());
    }
}

void CAudioWriter::finish() {
    errno = 0;
    sf_close(m_file.release());
    const int systemError = errno;
    if (m_pipe) {
        m_pipe->finish();
        m_pipe->requireNoError();
        return;
    }
    formatForLength(m_format, m_frames, m_channels, m_place);
    // libsndfile does not report every error at the end of encoding.
    if (framesIn(m_pending->path()) < m_frames)
        failWith(systemError);
    m_pending->commit();
}

void CAudioWriter::failWith(int systemError) const {
    fail(systemError != 0 ? std::system_category().message(systemError)
                          : "the file could not be completed");
}

void CAudioWriter::fail(const std::string &reason) const {
    throw CJobError(nameOfOutput(m_place) + ": cannot be written (" + reason + ")");
}

}  // namespace Tessitor::Tool
