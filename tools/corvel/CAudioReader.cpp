#include "corvel/CAudioReader.h"

#include "corvel/BytesMissing.h"
#include "corvel/Errors.h"
#include "corvel/OutputFormat.h"

#include <string>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

SNDFILE *openForReading(const fs::path &file, SF_INFO &info) {
    if (!fs::exists(file))
        throw CJobError(file.string() + ": no such file");
    if (!fs::is_regular_file(file))
        throw CJobError(file.string() + ": not a file");
    SNDFILE *opened = sf_open(file.c_str(), SFM_READ, &info);
    if (opened == nullptr)
        throw CJobError(file.string() + ": not a readable audio file (" + sf_strerror(nullptr) +
                        ")");
    return opened;
}

}  // namespace

CAudioReader::CAudioReader(const fs::path &file)
    : m_path(file), m_file(openForReading(file, m_info)) {
    if (!isKnownContainer(m_info.format))
        throw CJobError(file.string() + ": not a WAV, AIFF, FLAC or Ogg file");
    if (m_info.channels > 2)
        throw CJobError(file.string() + ": has " + std::to_string(m_info.channels) +
                        " channels; only mono and stereo can be rendered");
    if (const auto missing = bytesMissing(file))
        throw CJobError(file.string() + ": truncated, " + std::to_string(missing) +
                        " bytes of audio are missing");
    // The length of an Ogg file is in its last page.
    if (!knowsLength() && (m_info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_OGG)
        throw CJobError(file.string() + ": truncated, the end of the audio is missing");
}

std::int64_t CAudioReader::read(float *samples, std::int64_t frames) {
    return handleRead(sf_readf_float(m_file.get(), samples, frames), frames);
}

std::int64_t CAudioReader::read(double *samples, std::int64_t frames) {
    return handleRead(sf_readf_double(m_file.get(), samples, frames), frames);
}

std::int64_t CAudioReader::handleRead(std::int64_t frames, std::int64_t asked) {
    m_framesRead += frames;
    if (frames < asked && knowsLength() && m_framesRead < m_info.frames) {
        throw CJobError(m_path.string() + ": truncated or damaged, it ends after " +
                        std::to_string(m_framesRead) + " of " + std::to_string(m_info.frames) +
                        " frames");
    }
    if (sf_error(m_file.get()) != SF_ERR_NO_ERROR)
        throw CJobError(m_path.string() + ": damaged (" + sf_strerror(m_file.get()) + ")");
    return frames;
}

}  // namespace Tessitor::Tool
