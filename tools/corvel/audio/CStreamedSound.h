#pragma once

#include "corvel/audio/CStandardInput.h"
#include "corvel/audio/SRawFormat.h"

#include <cstdint>
#include <cstdio>
#include <sndfile.h>
#include <string>

namespace Tessitor::Tool {

/// Presents sound that arrives on standard input to libsndfile, which reads it in order while it
/// arrives:
///
///     standard input --> head, kept in memory --> libsndfile
///                    --> sound, passed on    -->
class CStreamedSound {
public:
    /// Reads the header of a WAV or RF64 file up to the first sample.
    /// @return false if it is another kind of file, or one that cannot be read in order.
    bool readWavHead();

    /// Opens the file whose header was read. This object must outlive the result.
    /// @param info  receives SF_COUNT_MAX frames if the header does not say how many there are.
    /// @return null if libsndfile does not understand the header.
    SNDFILE *openWav(SF_INFO &info);

    /// The same for samples without a header. Their number is not known.
    SNDFILE *openRaw(const SRawFormat &format, SF_INFO &info);

    /// Copies what was read and all the rest.
    /// @return false if the system refuses to write it; the reason is in errno.
    bool copyTo(std::FILE *file);

    CStandardInput &input() { return m_input; }

private:
    bool readOn(std::uint64_t bytes);
    void presentAsEndless();
    SNDFILE *open(SF_INFO &info);
    sf_count_t seek(sf_count_t offset, int whence);
    sf_count_t read(char *bytes, sf_count_t count);

    CStandardInput m_input;
    std::string m_head;              // as libsndfile sees it, and what it looks at when opening
    std::uint64_t m_soundBytes = 0;  // after the header
    bool m_knowsLength = false;
    bool m_isOpening = false;
    sf_count_t m_position = 0, m_length = 0;
    sf_count_t m_arrived = 0;  // the position up to which bytes have been read
};

}  // namespace Tessitor::Tool
