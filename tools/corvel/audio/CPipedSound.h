#pragma once

#include <cstdint>
#include <optional>
#include <sndfile.h>
#include <string>

namespace Tessitor::Tool {

/// Passes the sound that libsndfile writes on to standard output, in order. A pipe cannot be
/// written twice, so what libsndfile completes at the end, such as the lengths in the header of a
/// WAV file, is written in advance.
class CPipedSound {
public:
    /// @param frames  that will be written; none if that is not known.
    explicit CPipedSound(std::optional<std::int64_t> frames);

    /// @return as sf_open_virtual(). This object must outlive the result.
    SNDFILE *open(SF_INFO &info);

    /// Call after libsndfile has closed the file.
    void finish();

    /// @throws CJobError if writing has failed, or CInterruption; also if nobody reads the output.
    void requireNoError() const;

private:
    sf_count_t seek(sf_count_t offset, int whence);
    sf_count_t write(const char *bytes, sf_count_t count);
    void sendHead();
    void send(const char *bytes, std::size_t count);

    std::optional<std::int64_t> m_frames;
    std::uint64_t m_frameBytes = 0;  // of formats without compression
    std::string m_head;              // of a WAV file, in its latest version
    bool m_holdsHead = false;        // until the first sample follows
    sf_count_t m_position = 0, m_length = 0;
    bool m_ended = false;  // nobody reads the output
    int m_error = 0;       // of the system
};

}  // namespace Tessitor::Tool
