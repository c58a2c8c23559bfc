#include "corvel/audio/CResampler.h"

#include "corvel/console/Errors.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessitor::Tool {

CResampler::CResampler(std::string file, double fromRate, double toRate, int channels)
    : m_file(std::move(file)), m_ratio(toRate / fromRate),
      m_channels(static_cast<std::size_t>(channels)) {
    int error = 0;
    if (src_is_valid_ratio(m_ratio) != 0)
        m_state.reset(src_new(SRC_SINC_BEST_QUALITY, channels, &error));
    if (m_state == nullptr) {
        throw CJobError(m_file + ": cannot be converted from " +
                        std::to_string(std::lround(fromRate)) + " to " +
                        std::to_string(std::lround(toRate)) + " Hz");
    }
}

std::span<const float> CResampler::convert(std::span<const float> samples) {
    // Room for samples that the converter has held back from earlier calls.
    constexpr double spareFrames = 1024.0;
    std::size_t used = 0, made = 0;
    while (used < samples.size()) {
        const std::size_t left = (samples.size() - used) / m_channels;
        const double converted = static_cast<double>(left) * m_ratio;
        const auto room = static_cast<std::size_t>(converted + spareFrames) * m_channels;
        m_converted.resize(std::max(m_converted.size(), made + room));

        SRC_DATA data{};
        data.data_in = samples.data() + used;
        data.input_frames = static_cast<long>(left);
        data.data_out = m_converted.data() + made;
        data.output_frames = static_cast<long>((m_converted.size() - made) / m_channels);
        data.src_ratio = m_ratio;
        if (src_process(m_state.get(), &data) != 0)
            throw CJobError(m_file + ": cannot be converted to another rate");
        used += static_cast<std::size_t>(data.input_frames_used) * m_channels;
        made += static_cast<std::size_t>(data.output_frames_gen) * m_channels;
    }
    return {m_converted.data(), made};
}

std::span<const double> CResampler::convert(std::span<const double> samples) {
    m_narrowed.assign(samples.begin(), samples.end());
    const std::span<const float> converted = convert(std::span<const float>(m_narrowed));
    m_widened.assign(converted.begin(), converted.end());
    return m_widened;
}

}  // namespace Tessitor::Tool
