#pragma once

#include "corvel/audio/CAudioReader.h"
#include "corvel/audio/CDither.h"
#include "corvel/audio/CPipedSound.h"
#include "corvel/audio/STags.h"
#include "corvel/files/CPendingFile.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Writes an audio file. It appears only when finish() succeeds, so it is never incomplete. What is
/// written to standard output cannot be taken back.
class CAudioWriter {
public:
    /// @param file    or "-" for standard output, to which samples are passed on at once.
    /// @param format  libsndfile's format code.
    /// @param frames  that will be written; none if that is not known. The header of a WAV file on
    ///                standard output then has no length, and one in a file takes the 64-bit form
    ///                once it becomes too long for the other.
    /// @throws CJobError if the file cannot be created.
    CAudioWriter(const std::filesystem::path &file, EExisting existing, int format, int sampleRate,
                 int channels, std::optional<std::int64_t> frames = {});

    int channels() const { return m_channels; }
    int sampleRate() const { return m_sampleRate; }

    /// From now on dithers the samples.
    /// @return false if the format has no use for it: only 8-bit and 16-bit integers have.
    bool dither();
    /// Call before write(). What the format cannot hold is left out.
    void setTags(const STags &tags) { writeTags(m_file.get(), m_format, tags); }

    /// Appends interleaved samples. Integer formats round and clip them; floating-point formats do
    /// not change them.
    /// @throws CJobError if the file cannot be written, or CInterruption if nobody reads standard
    ///         output any more.
    void write(const float *samples, std::int64_t frames);
    void write(const double *samples, std::int64_t frames);

    /// Completes the file and gives it its final name.
    /// @throws as write().
    void finish();

    std::uint64_t clippedSamples() const { return m_clipped; }

private:
    template <typename Sample>
    void writeAll(const Sample *samples, std::int64_t frames);
    template <typename Sample>
    void quantiseAll(const Sample *samples, std::size_t count);
    [[noreturn]] void failWith(int systemError) const;
    [[noreturn]] void fail(const std::string &reason) const;

    std::filesystem::path m_place;
    int m_format;
    int m_sampleRate;
    int m_channels;
    int m_bits;                 // per integer sample; 0 for floating point
    std::int64_t m_frames = 0;  // written
    std::uint64_t m_clipped = 0;
    std::optional<CDither> m_dither;
    std::vector<double> m_dithered;
    std::vector<std::int32_t> m_integers;
    std::optional<CPendingFile> m_pending;  // one of these two, which must outlive m_file
    std::optional<CPipedSound> m_pipe;
    std::unique_ptr<SNDFILE, SSoundFileCloser> m_file;
};

}  // namespace Tessitor::Tool
