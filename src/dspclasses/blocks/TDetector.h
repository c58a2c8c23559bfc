#pragma once

#include "dspclasses/blocks/CGainsByLaw.h"
#include "dspclasses/blocks/DetectorStages.h"
#include "dspclasses/blocks/DetectorState.h"
#include "dspclasses/blocks/ExcessSmoothing.h"
#include "dspclasses/blocks/NeighbourFlush.h"
#include "dspclasses/kernels/StagedLoop.h"

/// The detector of the compressor and the de-esser. A fast follower of peaks decides whether the
/// signal is above the threshold. If it is, the excess in dB is that of the present level (not the
/// peak) over the threshold; if not, the excess is 0. A slower follower with the attack and the
/// release that the user sets smooths the excess, and the gain law turns it into a gain.
///
///     level --+--> peak follower --> peak > threshold? --+-----------------------+
///             |      2 ms, 15 ms                         |                       |
///             |                                          v                       v
///             +--> ln(level) * K - threshold --> excess, else 0 --> smoother --> active? --> gain
///
/// It runs as a staged loop (StagedLoop.h) with these stages:
///
///     read | follow | start log | finish log | smooth | start exp | finish exp, apply
template <typename Sample, typename Processor>
class TDetector {
public:
    using Four = TFour<Sample>;

    /// Runs a block.
    /// @param state     updated to the end of the block.
    /// @param flushed   the fields that are held at zero. Ignored in single precision.
    /// @param frames    at least 1.
    /// @param settings  () -> SDetectorSettings, called at least every 64 frames.
    /// @param read      (SStep) -> Four, the levels.
    /// @param gains     start(SGainLaw, SDetected) and, a step later, finish(SGainLaw) -> gains.
    /// @param apply     (SStep, gains), gains being what finish returned.
    /// @return whether the last frame was active.
    template <typename Settings, typename Read, typename Gains, typename Apply>
    [[gnu::always_inline]] static bool run(SDetectorState &state, SFlushedFields flushed,
                                           int frames, Settings settings, Read read, Gains &&gains,
                                           Apply apply) {
        SDetectorSettings now{};
        float peak = state.peak, smoothedExcessDb = state.smoothedExcessDb;
        // Spelled out for the compiler, which drops the branches in single precision.
        const bool isPeakFlushed = !Stages::isSingle && flushed.peak;
        const bool isExcessFlushed = !Stages::isSingle && flushed.smoothedExcess;
        Four levels{};
        typename Stages::SFollowed followed{};
        typename Stages::SLogarithm logarithm{};
        typename Stages::SMeasured measured{};
        SDetected detected{};
        runStaged(
            frames, [&] { now = settings(); }, [&](const SStep &step) { levels = read(step); },
            [&](const SStep &) {
                followed = {levels,
                            isPeakFlushed ? flush(peak) : Stages::followPeaks(levels, peak)};
            },
            [&](const SStep &) {
                logarithm = Stages::startLogarithm(followed, now.thresholdLinear);
            },
            [&](const SStep &) __attribute__((always_inline)) {
                measured = Stages::measure(logarithm, now.thresholdDb);
            },
            [&](const SStep &) {
                detected = Stages::detected(
                    measured, isExcessFlushed ? flush(smoothedExcessDb)
                                              : smoothFour(now.smoother, smoothedExcessDb,
                                                           measured.excessesDb, measured.areAbove));
            },
            [&](const SStep &) __attribute__((always_inline)) { gains.start(now.law, detected); },
            [&](const SStep &step)
                __attribute__((always_inline)) { apply(step, gains.finish(now.law)); });

        const SStep last = SStep::last(frames);
        state.peak = last.lastOf(followed.peaks);
        state.smoothedExcessDb = last.lastOf(detected.smoothedExcessesDb);
        return last.lastOf(detected.areActive) != 0;
    }

private:
    using Stages = TDetectorStages<Sample, Processor>;

    static Floats4 flush(float &field) {
        field = 0.0f;
        return splat(0.0f);
    }
};
