#pragma once

#include "dspclasses/blocks/CGainsByLaw.h"
#include "dspclasses/blocks/DetectorStages.h"
#include "dspclasses/blocks/DetectorState.h"
#include "dspclasses/blocks/ExcessSmoothing.h"
#include "dspclasses/kernels/StagedLoop.h"

#include <array>

/// Two detectors in single precision with the same settings, one for each channel, in one loop: its
/// stages are those of TDetector, each for both channels. The followers of the two channels run
/// side by side in the lanes of a register. Only the first channel has a gain.
template <typename Processor>
class TDetectorPair {
public:
    using Levels = std::array<SFloats4, 2>;

    /// Runs a block.
    /// @param states    updated to the end of the block.
    /// @param frames    at least 1.
    /// @param settings  () -> SDetectorSettings, called at least every 64 frames.
    /// @param read      (SStep) -> Levels.
    /// @param apply     (SStep, SGainLaw, Floats4, Mask4): the gains of the first channel, and the
    ///                  frames of the second that are active.
    /// @return whether the last frame of the first channel was active.
    template <typename Settings, typename Read, typename Apply>
    [[gnu::always_inline]] static bool run(std::array<SDetectorState, 2> &states, int frames,
                                           Settings settings, Read read, Apply apply) {
        SDetectorSettings now{};
        std::array<float, 2> peaks{states[0].peak, states[1].peak};
        std::array<float, 2> smoothedDb{states[0].smoothedExcessDb, states[1].smoothedExcessDb};
        Levels levels{};
        SFollowed first{}, second{};
        SLogarithm firstLog{}, secondLog{};
        SMeasured firstExcess{}, secondExcess{};
        SDetected firstDetected{}, secondDetected{};
        CGainsByLaw<Processor> gains;
        Mask4 secondAreActive{};
        runStaged(
            frames, [&] { now = settings(); }, [&](const SStep &step) { levels = read(step); },
            [&](const SStep &) {
                const std::array<Floats4, 2> followed = Stages::followPeaksTwice(levels, peaks);
                first = {levels[0], followed[0]};
                second = {levels[1], followed[1]};
            },
            [&](const SStep &) {
                firstLog = Stages::startLogarithm(first, now.thresholdLinear);
                secondLog = Stages::startLogarithm(second, now.thresholdLinear);
            },
            [&](const SStep &) __attribute__((always_inline)) {
                firstExcess = Stages::measure(firstLog, now.thresholdDb);
                secondExcess = Stages::measure(secondLog, now.thresholdDb);
            },
            [&](const SStep &) {
                const std::array<Floats4, 2> smoothed = smoothFourTwice(
                    now.smoother, smoothedDb, {firstExcess.excessesDb, secondExcess.excessesDb},
                    {firstExcess.areAbove, secondExcess.areAbove});
                firstDetected = Stages::detected(firstExcess, smoothed[0]);
                secondDetected = Stages::detected(secondExcess, smoothed[1]);
            },
            [&](const SStep &) __attribute__((always_inline)) {
                gains.start(now.law, firstDetected);
                secondAreActive = secondDetected.areActive;
            },
            [&](const SStep &step) __attribute__((always_inline)) {
                apply(step, now.law, gains.finish(now.law), secondAreActive);
            });

        const SStep last = SStep::last(frames);
        states[0] = {last.lastOf(first.peaks), last.lastOf(firstDetected.smoothedExcessesDb)};
        states[1] = {last.lastOf(second.peaks), last.lastOf(secondDetected.smoothedExcessesDb)};
        return last.lastOf(firstDetected.areActive) != 0;
    }

private:
    using Stages = TDetectorStages<float, Processor>;
    using SFollowed = typename Stages::SFollowed;
    using SLogarithm = typename Stages::SLogarithm;
    using SMeasured = typename Stages::SMeasured;
};
