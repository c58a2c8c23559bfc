#pragma once

#include <memory>
#include <samplerate.h>
#include <span>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Converts a stream of interleaved samples from one rate to another, in single precision.
class CResampler {
public:
    /// @param file  named in error messages.
    /// @throws CJobError if the converter does not support the ratio.
    CResampler(std::string file, double fromRate, double toRate, int channels);

    /// Converts samples and returns as many as are ready. They lag by the length of the filter, so
    /// feed silence at the end.
    /// @return samples in the converter's own memory, valid until the next call.
    std::span<const float> convert(std::span<const float> samples);
    std::span<const double> convert(std::span<const double> samples);

private:
    struct SDeleter {
        void operator()(SRC_STATE *state) const { src_delete(state); }
    };

    std::string m_file;
    double m_ratio;
    std::size_t m_channels;
    std::unique_ptr<SRC_STATE, SDeleter> m_state;
    std::vector<float> m_converted;
    std::vector<float> m_narrowed;  // input and output of the form in double precision
    std::vector<double> m_widened;
};

}  // namespace Tessitor::Tool
