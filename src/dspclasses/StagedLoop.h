#pragma once

#include "dspclasses/FourFrames.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

/// Takes a block through stages, four frames at a step. A recursion spends most of its time waiting
/// for its own last result. Here each stage works some steps behind the one before, on what that
/// has long finished, so that the processor fills the waiting of one with the work of the others.

/// How many steps a stage works behind the one before.
inline constexpr int stageLag = 2;

/// Stages hand their results on in rings, by SStep::slot.
inline constexpr int ringSteps = 8;

/// Four frames, or the one to three that are left at the end of the block.
struct SStep {
    int first;
    int count;
    int slot;

    SStep(int number, int frames)
        : first(4 * number), count(std::min(4, frames - first)), slot(number & (ringSteps - 1)) {}
    static SStep whole(int number) { return {number, 4 * number + 4}; }
    static int countIn(int frames) { return (frames + 3) / 4; }
    static SStep last(int frames) { return {countIn(frames) - 1, frames}; }

    bool isWhole() const { return count == 4; }

    /// @return what is behind the end of the block as 0.
    template <typename Sample>
    [[gnu::always_inline]] TFour<Sample> load(const Sample *block) const {
        if (isWhole()) [[likely]]
            return {*reinterpret_cast<const typename TFour<Sample>::InArray *>(block + first)};
        TFour<Sample> four{};
        std::memcpy(&four, block + first, static_cast<std::size_t>(count) * sizeof(Sample));
        return four;
    }

    template <typename Sample>
    [[gnu::always_inline]] void store(Sample *block, const TFour<Sample> &four) const {
        if (isWhole()) [[likely]]
            *reinterpret_cast<typename TFour<Sample>::InArray *>(block + first) = four.values;
        else
            std::memcpy(block + first, &four, static_cast<std::size_t>(count) * sizeof(Sample));
    }

    /// @return the lane of the last frame.
    template <typename Lanes>
    [[gnu::always_inline]] auto lastOf(const Lanes &lanes) const {
        return lanes[count - 1];
    }
};

template <typename Stage>
[[gnu::always_inline]] inline void runStage(Stage &stage, int number, int frames) {
    if (number >= 0 && number < SStep::countIn(frames))
        stage(SStep(number, frames));
}

/// Calls every stage with every step of a block, in order.
/// @param refresh  called every 64 frames: reads what another thread may have set.
/// @param stages   called as stage(SStep); each reads what the one before it left in a ring.
template <typename Refresh, typename... Stages>
[[gnu::always_inline]] inline void runStaged(int frames, Refresh refresh, Stages... stages) {
    constexpr int lastLag = stageLag * (static_cast<int>(sizeof...(stages)) - 1);
    static_assert(lastLag < ringSteps);
    const int wholeSteps = frames / 4;
    for (int leading = 0; leading < SStep::countIn(frames) + lastLag; ++leading) {
        if (leading % 16 == 0)
            refresh();
        int number = leading + stageLag;
        if (leading >= lastLag && leading < wholeSteps) [[likely]]
            (stages(SStep::whole(number -= stageLag)), ...);
        else
            (runStage(stages, number -= stageLag, frames), ...);
    }
}
