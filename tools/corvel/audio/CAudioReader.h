#pragma once

#include "corvel/audio/CPartOfFile.h"
#include "corvel/audio/CSpooledInput.h"
#include "corvel/audio/CStreamedSound.h"
#include "corvel/audio/STags.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <sndfile.h>
#include <string>
#include <vector>

namespace Tessitor::Tool {

struct SSoundFileCloser {
    void operator()(SNDFILE *file) const { sf_close(file); }
};

/// Reads an audio file with one or two channels: WAV, AIFF, FLAC, Ogg, MP3, W64, CAF or AU. A file
/// whose header lacks the length is read to its end, and so is an Ogg file of several links.
class CAudioReader {
public:
    /// @param file  or "-" for standard input. WAV and samples without a header are then read while
    ///              they arrive; other kinds of file are first stored in a temporary file.
    /// @param raw   what standard input contains if it has no header.
    /// @throws CJobError if the file is missing, cut short, in another format, or has more than two
    ///         channels; or CInterruption.
    explicit CAudioReader(const std::filesystem::path &file,
                          const std::optional<SRawFormat> &raw = {});

    int sampleRate() const { return m_info.samplerate; }
    int channels() const { return m_info.channels; }
    int format() const { return m_info.format; }  ///< libsndfile's format code
    /// False for what was written to a pipe and does not contain its length, for standard input,
    /// whose header may contain an estimate, and for MP3, where libsndfile makes one.
    bool knowsLength() const { return m_knowsLength; }
    /// @return true if no more than frames() can follow.
    bool isBounded() const { return m_info.frames != SF_COUNT_MAX && !isMp3(); }
    /// @return how many frames standard input has ended before the length in its header.
    std::int64_t framesMissing() const { return m_framesMissing; }
    std::int64_t frames() const;  ///< that read() will return; SF_COUNT_MAX if there is no estimate
    STags tags() const { return tagsOf(m_file.get()); }

    /// Limits what is read, which is exact to the frame in all formats. Call before read().
    /// @param start   in frames.
    /// @param length  in frames. A file that is shorter is read to its end.
    /// @throws CJobError if the file ends before `start`, or is damaged; or CInterruption.
    void select(std::int64_t start, std::int64_t length);

    /// Reads the next samples, interleaved. Integers become n / 2^(bits - 1).
    /// @return frames read; fewer than requested only at the end.
    /// @throws CJobError if the file is damaged or ends too early, or CInterruption.
    std::int64_t read(float *samples, std::int64_t frames);
    std::int64_t read(double *samples, std::int64_t frames);

private:
    void openStream(const std::optional<SRawFormat> &raw);
    void openFile();
    void open();
    void requireReadable() const;
    void requireBytes(std::uint64_t missing) const;
    void readPastUnknownLength();
    void findLinks();
    SF_INFO openPart(const SFilePart &part);
    template <typename Sample>
    std::int64_t readParts(Sample *samples, std::int64_t frames);
    void skip(std::int64_t frames);
    void handleEnd();
    bool isMp3() const { return (m_info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_MPEG; }
    void requireAllFrames();
    void requireNoError() const;
    [[noreturn]] void failBeforeStart(std::int64_t end) const;
    [[noreturn]] void fail(const std::string &reason) const;

    std::string m_name;  // for messages
    std::filesystem::path m_path;
    std::unique_ptr<CStreamedSound> m_stream;  // must outlive m_file
    std::optional<CSpooledInput> m_spool;
    SF_INFO m_info{};  // of the whole file
    bool m_knowsLength = false;
    std::int64_t m_framesMissing = 0;
    std::unique_ptr<CPartOfFile> m_openPart;  // must outlive m_file
    std::unique_ptr<SNDFILE, SSoundFileCloser> m_file;
    std::vector<SFilePart> m_partsLeft;  // the next one last
    std::int64_t m_framesRead = 0;       // also those that were skipped
    std::int64_t m_start = 0;            // the first frame that is wanted
    std::int64_t m_end = SF_COUNT_MAX;   // after the last one
};

}  // namespace Tessitor::Tool
