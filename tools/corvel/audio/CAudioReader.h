#pragma once

#include "corvel/audio/CPartOfFile.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <sndfile.h>
#include <vector>

namespace Tessitor::Tool {

struct SSoundFileCloser {
    void operator()(SNDFILE *file) const { sf_close(file); }
};

/// Reads an audio file: WAV, AIFF, FLAC or Ogg with one or two channels. A file whose header lacks
/// the length is read to its end, and so is an Ogg file of several links.
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
    void open();
    void requireReadable() const;
    void readPastUnknownLength();
    void findLinks();
    SF_INFO openPart(const SFilePart &part);
    template <typename Sample>
    std::int64_t readParts(Sample *samples, std::int64_t frames);
    void requireAllFrames() const;
    void requireNoError() const;
    [[noreturn]] void fail(const std::string &reason) const;

    std::filesystem::path m_path;
    SF_INFO m_info{};                         // of the whole file
    std::unique_ptr<CPartOfFile> m_openPart;  // must outlive m_file
    std::unique_ptr<SNDFILE, SSoundFileCloser> m_file;
    std::vector<SFilePart> m_partsLeft;  // the next one last
    std::int64_t m_framesRead = 0;
};

}  // namespace Tessitor::Tool
