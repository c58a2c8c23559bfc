#pragma once

#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

namespace Tessitor::Tool {

/// Finds the end of a tail: the last frame that is not silent before a long silence.
///
///     frames --> held back while they are silent --> frames that belong to the tail
template <typename Sample>
class TAutoTail {
public:
    /// @param silenceFrames  of silence that end the tail.
    TAutoTail(std::size_t channels, std::size_t silenceFrames)
        : m_channels(channels), m_silenceFrames(silenceFrames) {}

    /// @param samples  the next ones, interleaved. Ignored once the tail is over.
    /// @return those, and earlier ones, that belong to the tail; valid until the next call.
    std::span<const Sample> pass(std::span<const Sample> samples);

    bool isOver() const { return m_silentFrames == m_silenceFrames; }

private:
    static constexpr double silence = 3.1622776601683795e-5;  // -90 dBFS

    bool isSilent(std::span<const Sample> frame) const;

    const std::size_t m_channels, m_silenceFrames;
    std::size_t m_silentFrames = 0;  // since the last one that is not silent
    std::vector<Sample> m_held;      // these frames, after those that were passed on last
    std::size_t m_passed = 0;        // samples at the start of m_held
};

// Definitions

template <typename Sample>
std::span<const Sample> TAutoTail<Sample>::pass(std::span<const Sample> samples) {
    m_held.erase(m_held.begin(), m_held.begin() + static_cast<std::ptrdiff_t>(m_passed));
    m_passed = 0;
    for (std::size_t i = 0; i < samples.size() && !isOver(); i += m_channels) {
        const auto frame = samples.subspan(i, m_channels);
        m_held.insert(m_held.end(), frame.begin(), frame.end());
        m_silentFrames = isSilent(frame) ? m_silentFrames + 1 : 0;
        if (m_silentFrames == 0)
            m_passed = m_held.size();
    }
    return {m_held.data(), m_passed};
}

template <typename Sample>
bool TAutoTail<Sample>::isSilent(std::span<const Sample> frame) const {
    for (const Sample sample : frame)
        if (std::abs(static_cast<double>(sample)) >= silence)
            return false;
    return true;
}

}  // namespace Tessitor::Tool
