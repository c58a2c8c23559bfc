#pragma once

#include "dspclasses/blocks/DetectorState.h"
#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/ExcessSmoothing.h"
#include "dspclasses/blocks/Followers.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/SingleMathLanes.h"

#include <array>
#include <limits>
#include <type_traits>

/// The arithmetic of a detector up to the excess over the threshold, four frames at a time.
/// TDetector runs it as the first stages of its loop. Each structure is the result that one stage
/// passes to the next.
template <typename Sample, typename Processor>
struct TDetectorStages {
    using Four = TFour<Sample>;
    static constexpr bool isSingle = std::is_same_v<Sample, float>;

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
        Four excessesDb;  // 0 where not above
    };

    // Peaks

    // Four frames of release keep more than nine tenths of a peak, so one of this size cannot
    // become a denormal.
    static constexpr float leastNormalPeak = 2.0f * std::numeric_limits<float>::min();

    /// followPeaks for two channels, side by side if that is possible.
    [[gnu::always_inline]] static std::array<Floats4, 2>
    followPeaksTwice(const std::array<SFloats4, 2> &levels, std::array<float, 2> &peaks) {
        if (peaks[0] >= leastNormalPeak && peaks[1] >= leastNormalPeak) [[likely]]
            return followFourTwice(peakFollower, peaks, levels);
        return {followPeaks(levels[0], peaks[0]), followPeaks(levels[1], peaks[1])};
    }

    [[gnu::always_inline]] static Floats4 followPeaks(const Four &levels, float &peak) {
        if (isSingle && peak < leastNormalPeak) [[unlikely]] {
            const Floats4 flushed = followPeaksAndFlush(levels, peak);
            peak = flushed[3];
            return flushed;
        }
        return followFour(peakFollower, peak, levels);
    }

    [[gnu::noinline]] static Floats4 followPeaksAndFlush(const Four &levels, float peak) {
        return recurseFour(peak, levels, [](float before, Sample level) {
            return flushDenormal(peakFollower.next(before, level));
        });
    }

    // Excess: ln(level) * K - threshold, in two halves

    /// The logarithm is skipped if no frame is above the threshold.
    [[gnu::always_inline]] static SLogarithm startLogarithm(const SFollowed &followed,
                                                            float thresholdLinear) {
        const Mask4 areAbove = followed.peaks > thresholdLinear;
        if (!isAnySet(areAbove))
            return {areAbove, TLogParts<4>()};
        return {areAbove, startLog(aboveZero(followed.levels))};
    }

    [[gnu::always_inline]] static SMeasured measure(const SLogarithm &logarithm,
                                                    float thresholdDb) {
        const Mask4 &areAbove = logarithm.areAbove;
        if (!isAnySet(areAbove))
            return {areAbove, Four{}};
        return {areAbove, excessWhere(areAbove, logarithm.parts, thresholdDb)};
    }

    [[gnu::always_inline]] static SDetected detected(const SMeasured &measured,
                                                     const Floats4 &smoothedExcessesDb) {
        return {measured.areAbove | (smoothedExcessesDb > leastActiveExcessDb), smoothedExcessesDb};
    }

private:
    /// Digital silence has no logarithm, so the bias is added first, in the precision of the
    /// samples.
    static TDoubles<4> aboveZero(const SFloats4 &levels) {
        return widened({levels.values + smoothingBias});
    }
    static TDoubles<4> aboveZero(const TFour<double> &levels) {
        return {levels.values + double{smoothingBias}};
    }

    /// Kept: exponentPerDecibel turns decibels into a natural logarithm; to turn a logarithm into
    /// decibels, its reciprocal would be needed. So the excess of any signal above the threshold is
    /// close to -thresholdDb, however loud the signal is.
    [[gnu::always_inline]] static Four excessWhere(const Mask4 &areAbove, const TLogParts<4> &parts,
                                                   float thresholdDb) {
        constexpr Sample scale{exponentPerDecibel};
        if constexpr (isSingle) {
            const Floats4 excesses = nearestLogs<Processor>(parts).values * scale - thresholdDb;
            return {areAbove ? excesses : splat(0.0f)};
        } else {
            const TDoubleSums<4> logs = finishLog(parts);
            const auto excesses = (logs.high + logs.low) * scale - double{thresholdDb};
            const auto wideMask = __builtin_convertvector(areAbove, decltype(excesses > excesses));
            return {wideMask ? excesses : typename Four::Values{}};
        }
    }
};
