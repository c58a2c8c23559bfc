#pragma once

#include "dspclasses/Denormals.h"
#include "dspclasses/DynamicsMath.h"
#include "dspclasses/Followers.h"
#include "dspclasses/SingleMathLanes.h"
#include "dspclasses/StagedLoop.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

/// Kept: in double precision a result is tested for a denormal by the 64 bits that begin at its
/// field, so the test sees the single precision field behind it and nothing of the result.
/// @return whether a field in front of `next` is cleared; never in single precision.
template <typename Sample>
bool isClearedBy(float next) {
    return std::is_same_v<Sample, double> &&
           (std::bit_cast<std::uint32_t>(next) & 0x7ff00000u) == 0;
}

/// Rides through the smoothing of the amount, so that it does not end among the denormals.
inline constexpr float smoothingBias = 1e-20f;

/// A smoothed amount over this keeps the detector active after the signal has fallen back.
inline constexpr float leastActiveOver = 0.01f;

/// The gain that follows from the smoothed amount while the detector is active: it is above the
/// threshold, or on its way back.
struct SGainLaw {
    float slope;
    float offsetDb;
    float offsetLinear;

    /// @return in dB, of one frame.
    float decibels(bool isActive, float over) const {
        return isActive ? slope * over + offsetDb : offsetDb;
    }
    /// @return linear, from those decibels.
    float linear(bool isActive, float gainDb) const {
        return isActive ? linearFromDecibels(gainDb) : offsetLinear;
    }

    /// @return linear, of four frames. The exponential runs only where the detector is active.
    [[gnu::always_inline]] Floats4 linear(const Mask4 &isActive, const Floats4 &overs) const {
        if (!isAnySet(isActive))
            return splat(offsetLinear);
        const Floats4 exponents = (slope * overs + offsetDb) * exponentPerDecibel;
        return isActive ? expSingle(SFloats4{exponents}).values : splat(offsetLinear);
    }
};

/// The parameters as the audio thread works with them for a while.
struct SDetectorSettings {
    float thresholdDb, thresholdLinear;
    SFollower smoother;
    SGainLaw law;
};

/// What the detector knows between blocks, in single precision also where the samples are doubles.
struct SDetectorState {
    float peak;
    float over;  // smoothed amount over the threshold
    // Whether every frame clears the two, see isClearedBy.
    bool isPeakCleared = false, isOverCleared = false;
    // Whether the last frame of the block was active.
    bool isActive = false;
};

/// The detector of the compressor and the de-esser. A fast follower of peaks decides whether the
/// signal is above the threshold; if so, the level at that moment gives the amount; a slower
/// follower smooths the amount.
template <typename Sample>
class TDetector {
public:
    using Four = TFour<Sample>;

    /// Takes the state from before the block to after it.
    /// @param frames    at least 1.
    /// @param settings  () -> SDetectorSettings, called every 64 frames.
    /// @param levels    (SStep) -> Four.
    /// @param apply     (SStep, SGainLaw, whether each frame is active, its smoothed amount).
    template <typename Settings, typename Levels, typename Apply>
    [[gnu::always_inline]] void run(SDetectorState &state, int frames, Settings settings,
                                    Levels levels, Apply apply) {
        SDetectorSettings now{};
        float peak = state.peak, over = state.over;
        const bool isPeakCleared = state.isPeakCleared, isOverCleared = state.isOverCleared;
        runStaged(
            frames, [&] { now = settings(); },
            [&](const SStep &step) {
                m_levels[step] = levels(step);
                m_peaks[step] = isPeakCleared ? cleared(peak) : followed(m_levels[step], peak);
            },
            [&](const SStep &step) { measure(step, now); },
            [&](const SStep &step) {
                m_overs[step] = isOverCleared ? cleared(over) : smoothed(step, now.smoother, over);
            },
            [&](const SStep &step) { apply(step, now.law, activeIn(step), m_overs[step]); });

        const SStep last = SStep::last(frames);
        state.peak = last.lastOf(m_peaks[last]);
        state.over = last.lastOf(m_overs[last]);
        state.isActive = last.lastOf(activeIn(last)) != 0;
    }

private:
    static constexpr bool isSingle = std::is_same_v<Sample, float>;

    static constexpr float bias = smoothingBias;
    /// The bias changes no bit of a float of this magnitude.
    static constexpr float leastUnbiased = 0x1p-40f;

    /// The logarithm runs only where the detector is above the threshold.
    [[gnu::always_inline]] void measure(const SStep &step, const SDetectorSettings &now) {
        const Mask4 above = m_peaks[step] - now.thresholdLinear > 0.0f;
        m_above[step] = above;
        m_amounts[step] =
            isAnySet(above) ? amountsWhere(above, m_levels[step], now.thresholdDb) : Four{};
    }

    Mask4 activeIn(const SStep &step) const {
        return m_above[step] | (m_overs[step] > leastActiveOver);
    }

    static Floats4 cleared(float &state) {
        state = 0.0f;
        return splat(0.0f);
    }

    [[gnu::always_inline]] static Floats4 followed(const Four &levels, float &peak) {
        const float before = peak;
        const Floats4 peaks = followFour(peakFollower, peak, levels);
        constexpr float least = std::numeric_limits<float>::min();
        if (isSingle && isAnySet((peaks > 0.0f) & (peaks < least))) [[unlikely]] {
            const Floats4 flushed = followedAndFlushed(levels, before);
            peak = flushed[3];
            return flushed;
        }
        return peaks;
    }

    [[gnu::noinline]] static Floats4 followedAndFlushed(const Four &levels, float peak) {
        return recurFour(peak, levels, [](float before, Sample level) {
            return flushDenormal(peakFollower.next(before, level));
        });
    }

    /// Kept: the logarithm is scaled by what turns decibels into an exponent, where its reciprocal
    /// would give decibels. So the amount is nearly the same however far the signal is over.
    [[gnu::always_inline]] static Four amountsWhere(const Mask4 &above, const Four &levels,
                                                    float thresholdDb) {
        constexpr Sample scale{exponentPerDecibel};
        if constexpr (isSingle) {
            const Floats4 logs = logSingle({levels.values + bias}).values;
            return {above ? logs * scale - thresholdDb : splat(0.0f)};
        } else {
            const auto sum = logDoubles(Four{levels.values + double{bias}});
            const auto amounts = (sum.high + sum.low) * scale - double{thresholdDb};
            const auto wide = __builtin_convertvector(above, decltype(amounts > amounts));
            return {wide ? amounts : typename Four::Values{}};
        }
    }

    /// The plain form stands at the end. It cannot end in a denormal, so nothing is flushed here.
    [[gnu::always_inline]] Floats4 smoothed(const SStep &step, const SFollower &smoother,
                                            float &over) const {
        const Four &amounts = m_amounts[step];
        const float before = over, release = smoother.releaseCoef;
        // Below the threshold it only falls, towards -bias.
        if (before >= -bias && release >= 0.0f && !isAnySet(m_above[step])) {
            return recurFour(over, amounts, [release](float falling, Sample) {
                return (falling + bias) * release - bias;
            });
        }
        if (std::abs(before) >= leastUnbiased) [[likely]] {
            const Floats4 overs = followFour(smoother, over, amounts);
            const Floats4 magnitudes = magnitude(SFloats4{overs}).values;
            if (!isAnySet(magnitudes < leastUnbiased)) [[likely]]
                return overs;
        }
        const Floats4 overs = smoothedWithBias(amounts, smoother, before);
        over = overs[3];
        return overs;
    }

    [[gnu::noinline]] static Floats4 smoothedWithBias(const Four &amounts,
                                                      const SFollower &smoother, float over) {
        return recurFour(over, amounts, [&smoother](float before, Sample amount) {
            return smoother.next(before + bias, amount) - bias;
        });
    }

    TRing<Four> m_levels;
    TRing<Floats4> m_peaks;
    TRing<Mask4> m_above;
    TRing<Four> m_amounts;
    TRing<Floats4> m_overs;
};
