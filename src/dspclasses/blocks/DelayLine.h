#pragma once

#include "values/TRelaxed.h"

#include <atomic>
#include <cstdint>

/// Ring buffer of samples, a power of two long. A read goes back by its offset from the sample that
/// was written last: offset 0 is that sample itself. An offset beyond the line comes back as the
/// remainder, so that a read never leaves the buffer.
///
/// The samples and the write position belong to the audio thread. resize and setConstantOffset may
/// run on any threads beside it: a new offset lands between two reads, and a block that runs while
/// the line grows may end in the old buffer, which is why that one is kept.
class DelayLine {
public:
    explicit DelayLine(std::uint32_t size);
    ~DelayLine();

    /// Grows the line to the next power of two, silent and from its beginning. A line never
    /// shrinks: a size that it has already changes nothing. Allocates. [any thread]
    /// @param size  samples; 0 counts as 2.
    void resize(std::uint32_t size);
    std::uint32_t getCapacity() const;

    /// Stores the next sample, a denormal as 0.
    void write(float sample);

    /// @param offset  samples; its fraction goes linearly towards the older neighbour. Asserts that
    ///                it is not negative and is a number.
    float read(float offset) const;

    /// The last samples as they stand, the oldest of them first.
    void copyNewest(float *samples, int count) const;

    /// Stores the offset of readConstant, without its fraction, and grows the line to hold it.
    /// @param offset  samples; asserts that it is not negative and is a number. [any thread]
    void setConstantOffset(float offset);
    float readConstant() const;

    /// Silences the whole line. The write position stays.
    void clear();

    // The same for a run of frames at once. A frame is a read and then a write; a run reads for all
    // its frames and then writes for all, so no read may hang on a write of the same run.

    void write(const float *samples, int count);

    /// @return the longest run at one offset, at least 1.
    int getLongestRun(float offset) const;
    void read(float offset, float *samples, int count) const;
    int getLongestConstantRun() const;
    void readConstant(float *samples, int count) const;

    /// @return whether a run may read each frame at its own offset; if not, or if an offset is not
    ///         a number, the frames go one by one.
    bool canReadRun(const float *offsets, int count) const;
    void readRun(const float *offsets, float *samples, int count) const;

private:
    struct SBuffer;
    struct SRing;
    SRing ring() const;

    std::atomic<SBuffer *> buffer;           // the newest; each holds the one before it
    TRelaxed<std::uint32_t> writeIndex = 0;  // of the newest sample
    TRelaxed<std::uint32_t> constantOffset = 0;
    float constantFraction = 0.0f;
};
