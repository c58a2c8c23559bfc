#pragma once

#include <memory>
#include <samplerate.h>
#include <span>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Converts a stream of interleaved samples from one rate to another, through single precision.
class CResampler {
public:
    /// @param file  the one that errors are about.
    /// @throws CJobError if the ratio is out of the converter's reach.
    CResampler(std::string file, double fromRate, double toRate, int channels);

    /// Takes samples and gives what is ready, which lags behind by the length of the filter:
    /// silence pushes the end out.
    /// @return the converter's own memory, valid until the next call.
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
    std::vector<float> m_narrowed;  // to and from double precision
    std::vector<double> m_widened;
};

}  // namespace Tessitor::Tool
