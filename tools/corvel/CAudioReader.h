#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <sndfile.h>

namespace Tessitor::Tool {

struct SSoundFileCloser {
    void operator()(SNDFILE *file) const { sf_close(file); }
};

/// Reads an audio file: WAV, AIFF, FLAC or Ogg with one or two channels.
class CAudioReader {
public:
    /// @throws CJobError if the file is missing, cut short, in another format, or has more than two
    ///         channels.
    explicit CAudioReader(const std::filesystem::path &file);

    int sampleRate() const { return m_info.samplerate; }
    int channels() const { return m_info.channels; }
    int format() const { return m_info.format; }  ///< libsndfile's format code
    /// False for FLAC that was written to a pipe: it does not contain its length.
    bool knowsLength() const { return m_info.frames != SF_COUNT_MAX; }
    std::int64_t frames() const { return m_info.frames; }  ///< SF_COUNT_MAX if unknown

    /// Reads the next samples, interleaved. Integers become n / 2^(bits - 1).
    /// @return frames read; fewer than requested only at the end.
    /// @throws CJobError if the file is damaged or ends too early.
    std::int64_t read(float *samples, std::int64_t frames);
    std::int64_t read(double *samples, std::int64_t frames);

private:
    std::int64_t handleRead(std::int64_t frames, std::int64_t asked);

    std::filesystem::path m_path;
    SF_INFO m_info{};
    std::unique_ptr<SNDFILE, SSoundFileCloser> m_file;
    std::int64_t m_framesRead = 0;
};

}  // namespace Tessitor::Tool
