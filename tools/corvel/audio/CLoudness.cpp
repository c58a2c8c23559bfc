#include "corvel/audio/CLoudness.h"

#include "corvel/audio/CLevels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ebur128.h>
#include <limits>

namespace Tessitor::Tool {

namespace {

constexpr unsigned long hopMs = 100, blockMs = 400, shortTermMs = 3000;

int modeFor(const SLoudnessParts &parts) {
    int mode = EBUR128_MODE_I;
    mode |= parts.truePeak ? EBUR128_MODE_TRUE_PEAK : 0;
    mode |= parts.shortTerm ? EBUR128_MODE_S : 0;
    return mode;
}

// 0 times an infinity or a NaN is a NaN, and the sum keeps it. Lanes let the compiler vectorise.
template <typename Sample>
bool areFinite(const Sample *samples, std::size_t count) {
    std::array<Sample, 8> sums{};
    std::size_t i = 0;
    for (; i + sums.size() <= count; i += sums.size())
        for (std::size_t lane = 0; lane < sums.size(); ++lane)
            sums[lane] += Sample(0) * samples[i + lane];
    for (; i < count; ++i)
        sums[0] += Sample(0) * samples[i];
    return std::all_of(sums.begin(), sums.end(), [](Sample sum) { return sum == Sample(0); });
}

void addFrames(ebur128_state *state, const float *samples, std::size_t frames) {
    ebur128_add_frames_float(state, samples, frames);
}

void addFrames(ebur128_state *state, const double *samples, std::size_t frames) {
    ebur128_add_frames_double(state, samples, frames);
}

std::optional<double> ifFinite(double number) {
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

}  // namespace

struct CLoudness::SMeter {
    ebur128_state *state;  // null at sample rates that the library refuses

    explicit SMeter(ebur128_state *made) : state(made) {}
    ~SMeter() {
        if (state != nullptr)
            ebur128_destroy(&state);
    }
    SMeter(const SMeter &) = delete;
    SMeter &operator=(const SMeter &) = delete;
};

CLoudness::CLoudness(int sampleRate, int channels, const SLoudnessParts &parts)
    : m_meter(std::make_unique<SMeter>(ebur128_init(static_cast<unsigned>(channels),
                                                    static_cast<unsigned long>(sampleRate),
                                                    modeFor(parts)))),
      m_channels(static_cast<std::size_t>(channels)), m_parts(parts),
      // Rounded as the library does, so that our hops end where its blocks end.
      m_hopFrames((static_cast<std::size_t>(sampleRate) + 5) / 10), m_framesToHop(m_hopFrames) {}

CLoudness::~CLoudness() = default;
CLoudness::CLoudness(CLoudness &&) noexcept = default;
CLoudness &CLoudness::operator=(CLoudness &&) noexcept = default;

void CLoudness::add(const float *samples, std::size_t frames) {
    addAll(samples, frames);
}

void CLoudness::add(const double *samples, std::size_t frames) {
    addAll(samples, frames);
}

template <typename Sample>
void CLoudness::addAll(const Sample *samples, std::size_t frames) {
    m_finite = m_finite && areFinite(samples, frames * m_channels);
    if (m_meter->state == nullptr || !m_finite)
        return;
    while (frames > 0) {
        const std::size_t part = std::min(frames, m_framesToHop);
        addFrames(m_meter->state, samples, part);
        samples += part * m_channels;
        frames -= part;
        m_framesToHop -= part;
        if (m_framesToHop == 0)
            handleHop();
    }
}

void CLoudness::handleHop() {
    ++m_hops;
    m_framesToHop = m_hopFrames;
    const unsigned long elapsedMs = m_hops * hopMs;
    const bool isBlock = elapsedMs >= blockMs;
    if (m_parts.blocks && isBlock)
        m_blocks.push_back(loudnessOfLast(blockMs));
    if (m_parts.shortTerm) {
        m_shortTerm.push_back(
            isBlock ? static_cast<float>(loudnessOfLast(std::min(elapsedMs, shortTermMs)))
                    : -std::numeric_limits<float>::infinity());
    }
}

double CLoudness::loudnessOfLast(unsigned long milliseconds) const {
    double loudness = 0.0;
    ebur128_loudness_window(m_meter->state, milliseconds, &loudness);
    return loudness;
}

SLoudness CLoudness::finish() {
    if (m_meter->state == nullptr || !m_finite)
        return {};
    double integrated = 0.0;
    ebur128_loudness_global(m_meter->state, &integrated);
    SLoudness result{ifFinite(integrated), {}};
    if (m_parts.truePeak)
        result.truePeak = truePeak();
    return result;
}

std::optional<double> CLoudness::truePeak() const {
    // The library's interpolation filter holds back the last 12 frames.
    const std::vector<float> silence(16 * m_channels, 0.0f);
    addFrames(m_meter->state, silence.data(), 16);
    double highest = 0.0;
    for (unsigned channel = 0; channel < m_channels; ++channel) {
        double peak = 0.0;
        ebur128_true_peak(m_meter->state, channel, &peak);
        highest = std::max(highest, peak);
    }
    return ifFinite(decibels(highest));
}

}  // namespace Tessitor::Tool
