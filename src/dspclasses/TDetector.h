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

/// The detector of the compressor and the de-esser, in three stages, see StagedLoop.h. A fast
/// follower of peaks decides whether the signal is above the threshold; if so, the level at that
/// moment gives the amount; a slower follower smooths the amount.
///
/// The running states are the caller's, so that they can stay in registers. Both keep single
/// precision. isCleared: this clears the state at every frame, see isClearedBy.
template <typename Sample>
class TDetector {
public:
    using Four = TFour<Sample>;

    /// First stage.
    /// @param peak  of the frame before; becomes that of the last frame.
    [[gnu::always_inline]] void follow(const SStep &step, const Four &levels, float &peak,
                                       bool isCleared) {
        m_levels[step.slot] = levels;
        m_peaks[step.slot] = isCleared ? cleared(peak) : followed(levels, peak);
        if (!step.isWhole())
            peak = step.lastOf(m_peaks[step.slot]);
    }

    /// Second stage. The logarithm runs only where the detector is above the threshold.
    [[gnu::always_inline]] void measure(const SStep &step, float thresholdDb,
                                        float thresholdLinear) {
        const Mask4 above = m_peaks[step.slot] - splat(thresholdLinear) > 0.0f;
        m_above[step.slot] = above;
        m_amounts[step.slot] =
            isAnySet(above) ? amountsWhere(above, m_levels[step.slot], thresholdDb) : Four{};
    }

    /// Third stage.
    /// @param over  the smoothed amount of the frame before; becomes that of the last frame.
    [[gnu::always_inline]] void smooth(const SStep &step, const SFollower &smoother, float &over,
                                       bool isCleared) {
        m_overs[step.slot] = isCleared ? cleared(over) : smoothed(step, smoother, over);
        if (!step.isWhole())
            over = step.lastOf(m_overs[step.slot]);
    }

    /// @return the frames at which the detector decides on the gain: it is above the threshold, or
    ///         on its way back.
    Mask4 isActive(const SStep &step) const {
        return m_above[step.slot] | (m_overs[step.slot] > leastActiveOver);
    }
    Floats4 oversOf(const SStep &step) const { return m_overs[step.slot]; }

private:
    static constexpr bool isSingle = std::is_same_v<Sample, float>;

    static constexpr float bias = smoothingBias;
    /// The bias changes no bit of a float of this magnitude.
    static constexpr float leastUnbiased = 0x1p-40f;

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
            const Floats4 logs = logSingle(SFloats4{levels.values + bias}).lanes;
            return {above ? logs * scale - splat(thresholdDb) : splat(0.0f)};
        } else {
            const auto sum = logDoubles(TDoubles<4>{levels.values + double{bias}});
            const auto amounts = (sum.high + sum.low) * scale - double{thresholdDb};
            const auto wide = __builtin_convertvector(above, decltype(amounts > amounts));
            return {wide ? amounts : typename Four::Values{}};
        }
    }

    /// The usual steps leave out the part of the bias that changes nothing.
    [[gnu::always_inline]] Floats4 smoothed(const SStep &step, const SFollower &smoother,
                                            float &over) const {
        const Four &amounts = m_amounts[step.slot];
        const float before = over, release = smoother.releaseCoef;
        if (before >= -bias && release >= 0.0f && !isAnySet(m_above[step.slot]))
            return recurFour(over, amounts, [release](float falling, Sample) {
                return (falling + bias) * release - bias;
            });
        if (std::abs(before) >= leastUnbiased) [[likely]] {
            const Floats4 overs = followFour(smoother, over, amounts);
            const Floats4 magnitudes = magnitude(TFour<float>{overs}).values;
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

    Four m_levels[ringSteps];
    Floats4 m_peaks[ringSteps];
    Mask4 m_above[ringSteps];
    Four m_amounts[ringSteps];
    Floats4 m_overs[ringSteps];
};

/// The gain that follows from the smoothed amount.
struct SGainLaw {
    float slope;
    float offsetDb;
    float offsetLinear;

    /// @return in dB, of one frame.
    float decibels(bool isActive, float over) const {
        return isActive ? slope * over + offsetDb : offsetDb;
    }

    /// @return linear. The exponential runs only where the detector is active.
    [[gnu::always_inline]] Floats4 gains(const Mask4 &isActive, const Floats4 &overs) const {
        if (!isAnySet(isActive))
            return splat(offsetLinear);
        const Floats4 exponents = (slope * overs + offsetDb) * exponentPerDecibel;
        return isActive ? expSingle(SFloats4{exponents}).lanes : splat(offsetLinear);
    }
};
