#pragma once

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/Followers.h"
#include "dspclasses/blocks/GainLaw.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/SingleMathLanes.h"
#include "dspclasses/kernels/StagedLoop.h"

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
    /// @param settings  () -> SDetectorSettings, called at least every 64 frames.
    /// @param read      (SStep) -> Four: the levels.
    /// @param gains     start(SGainLaw, SDetected) and, a step later, finish(SGainLaw) -> gains.
    /// @param apply     (SStep, what finish returned).
    template <typename Settings, typename Read, typename Gains, typename Apply>
    [[gnu::always_inline]] static void run(SDetectorState &state, int frames, Settings settings,
                                           Read read, Gains &&gains, Apply apply) {
        SDetectorSettings now{};
        float peak = state.peak, over = state.over;
        // Never in single precision, which the compiler cannot know from the state.
        const bool isPeakCleared = !isSingle && state.isPeakCleared;
        const bool isOverCleared = !isSingle && state.isOverCleared;
        Four levels{};
        SFollowed followed{};
        SLogarithm logarithm{};
        SMeasured measured{};
        SDetected detected{};
        runStaged(
            frames, [&] { now = settings(); }, [&](const SStep &step) { levels = read(step); },
            [&](const SStep &) {
                followed = {levels, isPeakCleared ? cleared(peak) : follow(levels, peak)};
            },
            [&](const SStep &) { logarithm = startLogarithm(followed, now.thresholdLinear); },
            [&](const SStep &) { measured = measure(logarithm, now.thresholdDb); },
            [&](const SStep &) {
                detected.overs =
                    isOverCleared ? cleared(over) : smooth(measured, now.smoother, over);
                detected.areActive = measured.areAbove | (detected.overs > leastActiveOver);
            },
            [&](const SStep &) { gains.start(now.law, detected); },
            [&](const SStep &step) { apply(step, gains.finish(now.law)); });

        const SStep last = SStep::last(frames);
        state.peak = last.lastOf(followed.peaks);
        state.over = last.lastOf(detected.overs);
        state.isActive = last.lastOf(detected.areActive) != 0;
    }

private:
    static constexpr bool isSingle = std::is_same_v<Sample, float>;

    static constexpr float bias = smoothingBias;
    /// The bias changes no bit of a float of this magnitude.
    static constexpr float leastUnbiased = 0x1p-40f;

    struct SFollowed {
        Four levels;
        Floats4 peaks;
    };
    struct SLogarithm {
        Mask4 areAbove;
        TLogParts<4> parts;
    };
    struct SMeasured {
        Mask4 areAbove;
        Four amounts;
    };

    static Floats4 cleared(float &state) {
        state = 0.0f;
        return splat(0.0f);
    }

    /// Four frames leave more than nine tenths of a peak, so one of this size leads to no denormal.
    static constexpr float leastNormalPeak = 2.0f * std::numeric_limits<float>::min();

    [[gnu::always_inline]] static Floats4 follow(const Four &levels, float &peak) {
        if (isSingle && peak < leastNormalPeak) [[unlikely]] {
            const Floats4 flushed = followedAndFlushed(levels, peak);
            peak = flushed[3];
            return flushed;
        }
        return followFour(peakFollower, peak, levels);
    }

    [[gnu::noinline]] static Floats4 followedAndFlushed(const Four &levels, float peak) {
        return recurFour(peak, levels, [](float before, Sample level) {
            return flushDenormal(peakFollower.next(before, level));
        });
    }

    /// The logarithm runs only where the detector is above the threshold.
    [[gnu::always_inline]] static SLogarithm startLogarithm(const SFollowed &followed,
                                                            float thresholdLinear) {
        const Mask4 areAbove = followed.peaks > thresholdLinear;
        if (!isAnySet(areAbove))
            return {areAbove, TLogParts<4>()};
        return {areAbove, startLog(biased(followed.levels))};
    }

    static TDoubles<4> biased(const SFloats4 &levels) { return widened({levels.values + bias}); }
    static TDoubles<4> biased(const TFour<double> &levels) {
        return {levels.values + double{bias}};
    }

    [[gnu::always_inline]] static SMeasured measure(const SLogarithm &logarithm,
                                                    float thresholdDb) {
        const Mask4 &areAbove = logarithm.areAbove;
        if (!isAnySet(areAbove))
            return {areAbove, Four{}};
        return {areAbove, amountsWhere(areAbove, finishLog(logarithm.parts), thresholdDb)};
    }

    /// Kept: the logarithm is scaled by what turns decibels into an exponent, where its reciprocal
    /// would give decibels. So the amount is nearly the same however far the signal is over.
    [[gnu::always_inline]] static Four amountsWhere(const Mask4 &areAbove,
                                                    const TDoubleSums<4> &logs, float thresholdDb) {
        constexpr Sample scale{exponentPerDecibel};
        if constexpr (isSingle) {
            const Floats4 amounts = rounded(logs).values * scale - thresholdDb;
            return {areAbove ? amounts : splat(0.0f)};
        } else {
            const auto amounts = (logs.high + logs.low) * scale - double{thresholdDb};
            const auto wide = __builtin_convertvector(areAbove, decltype(amounts > amounts));
            return {wide ? amounts : typename Four::Values{}};
        }
    }

    /// The plain form stands at the end. It cannot end in a denormal, so nothing is flushed here.
    [[gnu::always_inline]] static Floats4 smooth(const SMeasured &measured,
                                                 const SFollower &smoother, float &over) {
        const Four &amounts = measured.amounts;
        const float before = over, release = smoother.releaseCoef;
        // Below the threshold it only falls, towards -bias.
        if (before >= -bias && release >= 0.0f && !isAnySet(measured.areAbove)) {
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
};
