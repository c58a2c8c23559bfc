#pragma once

#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/WideLoop.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// The ring of a delay line at the start of a run of frames. A sample is addressed by its distance
/// from the newest one:
///
///     place        0   1   2   3   4   5   6   7
///     distance     2   1   0   7   6   5   4   3
///                          ^ newest, and to the right of it the oldest, which is overwritten next
///
/// A frame reads and then writes. A run reads for all its frames first and then writes for all:
/// see docs/kernels.md. Where it passes the end of the ring, it is cut into two stretches.
struct SDelayRing {
    float *samples;      // samples[-1] repeats the last sample of the ring
    std::uint32_t mask;  // capacity - 1
    std::uint32_t newest;

    /// @return the place to read in the given frame of a run, from 0. Distances go round the ring.
    std::uint32_t placeOf(std::uint32_t distance, std::uint32_t frame = 0) const {
        return (newest + frame - distance) & mask;
    }

    /// @return how many frames can read at this distance before one of them would need a sample
    ///         that the run itself writes; at least 1.
    int getLongestRun(std::uint32_t distance) const {
        const std::uint32_t reduced = distance & mask;
        // The older neighbour of the oldest sample is the newest, which every write changes.
        const std::uint32_t frames = reduced == mask ? 1 : reduced + 1;
        return static_cast<int>(std::min(frames, 0x7fffffffu));
    }

    /// @return how many of the next `count` samples lie between `place` and the end of the ring.
    int stretchFrom(std::uint32_t place, int count) const {
        return static_cast<int>(std::min(mask - place, static_cast<std::uint32_t>(count - 1))) + 1;
    }

    /// Copies the newest `count` samples, the oldest of them first.
    void copyNewest(float *to, int count) const {
        std::uint32_t place = newest - static_cast<std::uint32_t>(count);
        for (int i = 0; i < count; ++i)
            to[i] = samples[++place & mask];
    }

    /// Stores `count` samples, denormals as 0.
    /// @return the new place of the newest sample.
    std::uint32_t write(const float *from, int count) const {
        std::uint32_t place = newest;
        while (count > 0) {
            place = (place + 1) & mask;
            const int stretch = stretchFrom(place, count);
            writeStretch(from, samples + place, stretch);
            place += static_cast<std::uint32_t>(stretch - 1);
            if (place == mask)
                samples[-1] = samples[place];
            from += stretch;
            count -= stretch;
        }
        return place;
    }

    void clear() const { std::fill_n(samples - 1, std::size_t{mask} + 2, 0.0f); }

private:
    static void writeStretch(const float *from, float *to, int count) {
        runWide([=] {
            for (int i = 0; i < count; ++i)
                to[i] = flushDenormal(from[i]);
        });
    }
};
