#pragma once

#include "dspclasses/kernels/Lanes.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

/// Runs a block through stages, four frames at a step, each stage one step behind the stage before
/// it. A recursion spends most of its time waiting for its own last result; here the processor
/// works on the other stages meanwhile:
///
///     loop count      0   1   2   3   4   5
///     first stage     A   B   C   D              A to D: the steps of a block of 16 frames
///     second stage        A   B   C   D
///     third stage             A   B   C   D
///
/// Running all stages on the same step instead makes the compressor take half as long again and the
/// de-esser nearly twice as long. docs/kernels.md has the timeline of the detector.

/// Four frames, or the one to three that remain at the end of a block.
struct SStep {
    int first;
    int count;

    static int countIn(int frames) { return (frames + 3) / 4; }
    static SStep at(int number, int frames) {
        return {4 * number, std::min(4, frames - 4 * number)};
    }
    static SStep last(int frames) { return at(countIn(frames) - 1, frames); }

    bool isWhole() const { return count == 4; }

    /// @return the frames of the step; lanes past the end of the block are 0.
    template <typename Sample>
    [[gnu::always_inline]] TFour<Sample> load(const Sample *block) const {
        if (isWhole()) [[likely]]
            return loadFour(block + first);
        TFour<Sample> frames{};
        std::memcpy(&frames, block + first, static_cast<std::size_t>(count) * sizeof(Sample));
        return frames;
    }

    template <typename Sample>
    [[gnu::always_inline]] void store(Sample *block, const TFour<Sample> &frames) const {
        if (isWhole()) [[likely]]
            storeFour(block + first, frames);
        else
            std::memcpy(block + first, &frames, static_cast<std::size_t>(count) * sizeof(Sample));
    }

    /// @return the lane of the last frame.
    template <typename Lanes>
    [[gnu::always_inline]] auto lastOf(const Lanes &lanes) const {
        return lanes[count - 1];
    }
};

/// Calls the last stage first, so that each stage finds the result that the one before it left in
/// the previous round of the loop.
template <typename Run, typename Stage, typename... Later>
[[gnu::always_inline]] inline void runLastFirst(Run run, int number, Stage &stage,
                                                Later &...later) {
    if constexpr (sizeof...(later) > 0)
        runLastFirst(run, number - 1, later...);
    run(stage, number);
}

/// Calls every stage with every step of a block, in order.
/// @param refresh  called at least every 64 frames, to read what another thread may have set. The
///                 stages are a step apart, so they see a change on different frames.
/// @param stages   called as stage(SStep). A stage leaves its result in a plain variable: the next
///                 stage is called exactly once before the variable is overwritten.
template <typename Refresh, typename... Stages>
[[gnu::always_inline]] inline void runStaged(int frames, Refresh refresh, Stages... stages) {
    constexpr int lastLag = static_cast<int>(sizeof...(stages)) - 1;  // of the last stage, in steps
    constexpr int stepsPerRefresh = 16;
    const int steps = SStep::countIn(frames), wholeSteps = frames / 4;
    const auto runWhole = [](auto &stage, int number) { stage(SStep{4 * number, 4}); };
    const auto runPart = [=](auto &stage, int number) {
        if (number >= 0 && number < steps)
            stage(SStep::at(number, frames));
    };
    for (int leading = 0; leading < steps + lastLag; ++leading) {
        if (leading % stepsPerRefresh == 0)
            refresh();
        if (leading >= lastLag && leading < wholeSteps) [[likely]]
            runLastFirst(runWhole, leading, stages...);
        else
            runLastFirst(runPart, leading, stages...);
    }
}
