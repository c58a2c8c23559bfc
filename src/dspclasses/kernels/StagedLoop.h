#pragma once

#include "dspclasses/kernels/Lanes.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

/// Takes a block through stages, four frames at a step. A recursion spends most of its time waiting
/// for its own last result. Here each stage works one step behind the one before, on what that has
/// long finished, so that the processor fills the waiting of one with the work of the others. With
/// all stages on the same step, the compressor takes half as long again and the de-esser nearly
/// twice as long.

/// Four frames, or the one to three that are left at the end of the block.
struct SStep {
    int first;
    int count;

    static int countIn(int frames) { return (frames + 3) / 4; }
    static SStep at(int number, int frames) {
        return {4 * number, std::min(4, frames - 4 * number)};
    }
    static SStep last(int frames) { return at(countIn(frames) - 1, frames); }

    bool isWhole() const { return count == 4; }

    /// @return what is behind the end of the block as 0.
    template <typename Sample>
    [[gnu::always_inline]] TFour<Sample> load(const Sample *block) const {
        if (isWhole()) [[likely]]
            return loadFour(block + first);
        TFour<Sample> four{};
        std::memcpy(&four, block + first, static_cast<std::size_t>(count) * sizeof(Sample));
        return four;
    }

    template <typename Sample>
    [[gnu::always_inline]] void store(Sample *block, const TFour<Sample> &four) const {
        if (isWhole()) [[likely]]
            storeFour(block + first, four);
        else
            std::memcpy(block + first, &four, static_cast<std::size_t>(count) * sizeof(Sample));
    }

    /// @return the lane of the last frame.
    template <typename Lanes>
    [[gnu::always_inline]] auto lastOf(const Lanes &lanes) const {
        return lanes[count - 1];
    }
};

/// The stages, the last one first: each finds what the one before it left the last time.
template <typename Run, typename Stage, typename... Later>
[[gnu::always_inline]] inline void runLastFirst(Run run, int number, Stage &stage,
                                                Later &...later) {
    if constexpr (sizeof...(later) > 0)
        runLastFirst(run, number - 1, later...);
    run(stage, number);
}

/// Calls every stage with every step of a block, in order.
/// @param refresh  called at least every 64 frames: reads what another thread may have set. That
///                 reaches the stages a step apart.
/// @param stages   called as stage(SStep). Between two calls of one lies one call of each other, so
///                 it leaves its result for the next in a plain variable.
template <typename Refresh, typename... Stages>
[[gnu::always_inline]] inline void runStaged(int frames, Refresh refresh, Stages... stages) {
    constexpr int lastLag = static_cast<int>(sizeof...(stages)) - 1;
    const int steps = SStep::countIn(frames), wholeSteps = frames / 4;
    const auto runWhole = [](auto &stage, int number) { stage(SStep{4 * number, 4}); };
    const auto runPart = [=](auto &stage, int number) {
        if (number >= 0 && number < steps)
            stage(SStep::at(number, frames));
    };
    for (int leading = 0; leading < steps + lastLag; ++leading) {
        if (leading % 16 == 0)
            refresh();
        if (leading >= lastLag && leading < wholeSteps) [[likely]]
            runLastFirst(runWhole, leading, stages...);
        else
            runLastFirst(runPart, leading, stages...);
    }
}
