#pragma once

#include "dspclasses/blocks/CDelayBuffer.h"
#include "values/TRelaxed.h"

#include <cstdint>

struct SDelayRing;

/// Delay line: a ring of samples, a power of two long, read at any distance from its newest sample.
///
///     write --> [ newest | 1 | 2 | 3 | ... | capacity - 1 ]
///                              |   |
///                              read(2.25) = 0.75 of sample 2 + 0.25 of sample 3
///
/// Offset 0 is the newest sample. An offset beyond the capacity wraps, so that a read never leaves
/// the memory.
///
/// The samples and the write position belong to the audio thread. resize and setConstantOffset may
/// run on any thread at the same time: a new offset takes effect between two reads, and a block
/// that runs while the line grows may finish in the memory that it began in, see CDelayBuffer.
class DelayLine {
public:
    explicit DelayLine(std::uint32_t size);

    /// Grows the line to the next power of two and silences it. A line never shrinks: a smaller
    /// size changes nothing. Allocates. [any thread]
    /// @param size  samples; 0 counts as 2.
    void resize(std::uint32_t size);
    std::uint32_t getCapacity() const;  ///< samples

    /// Stores the next sample, a denormal as 0.
    void write(float sample);

    /// @param offset  samples; its fraction interpolates linearly towards the older neighbour.
    ///                Asserts that it is neither negative nor a NaN.
    float read(float offset) const;

    /// Copies the newest samples, the oldest of them first.
    void copyNewest(float *samples, int count) const;

    /// Stores the whole part of the offset for the constant reads and grows the line to hold it.
    /// @param offset  samples; asserts that it is neither negative nor a NaN. [any thread]
    void setConstantOffset(float offset);
    float readConstant() const;

    /// Silences the whole line. The write position stays.
    void clear();

    // Runs of frames. In each frame, the read comes before the write. A run does all its reads
    // first and then all its writes, so no frame may read what its own run writes. SRun::frames and
    // canReadRun say how long a run may be. See docs/kernels.md.

    /// The samples of a run at one offset, in the memory of the line.
    struct SRun {
        const float *newer;  ///< for each frame; the sample before it is its older neighbour
        float fraction;      ///< of the way from the newer to the older neighbour
        int frames;          ///< how long the run may be, at least 1

        /// Copies the first `count` of them, up to `frames`.
        void read(float *samples, int count) const;
    };

    void write(const float *samples, int count);

    /// @param offset  samples; asserts that it is neither negative nor a NaN.
    SRun getRun(float offset) const;
    SRun getConstantRun() const;

    /// @param offsets  samples, one per frame.
    /// @return whether a run of `count` frames may read at these offsets. False also for a NaN. If
    ///         false, process the frames one by one.
    bool canReadRun(const float *offsets, int count) const;
    void readRun(const float *offsets, float *samples, int count) const;

private:
    SDelayRing ring() const;
    SRun runAt(std::uint32_t distance, float fraction) const;

    CDelayBuffer buffer;
    TRelaxed<std::uint32_t> writeIndex = 0;  // place of the newest sample
    TRelaxed<std::uint32_t> constantOffset = 0;
    // Kept: always 0. The interpolation remains, since 0 times an infinite neighbour is a NaN.
    float constantFraction = 0.0f;
};
