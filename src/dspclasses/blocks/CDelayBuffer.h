#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

/// The memory of a delay line. Any thread may grow it without a lock while the audio thread uses
/// it: growing puts a larger memory in front of the existing ones and frees none of them.
///
///     newest --> 16384 samples --> 4096 samples --> 4 samples
///                                  ^ a block that began before the growth may finish in this one
///
/// Each memory is at least twice as long as the one before it, so the older ones together never
/// take more room than the newest.
class CDelayBuffer {
public:
    /// Only the samples ever change, so its capacity always fits its cells.
    struct SMemory {
        explicit SMemory(std::uint32_t length);
        float *samples() const { return cells.get() + 1; }

        const std::uint32_t capacity;  // samples, a power of two
        // One more than the capacity: cells[0] repeats the last sample, so that each sample has its
        // older neighbour beside it.
        const std::unique_ptr<float[]> cells;
        SMemory *older = nullptr;
    };

    /// @param size  samples; rounded up to a power of two, and 0 counts as 2.
    explicit CDelayBuffer(std::uint32_t size);
    CDelayBuffer(const CDelayBuffer &) = delete;
    CDelayBuffer &operator=(const CDelayBuffer &) = delete;
    ~CDelayBuffer();

    /// Makes room for `size` samples, rounded as above; allocates. The new memory holds zeros.
    /// @return false if there was already enough room; then nothing has changed. [any thread]
    bool grow(std::uint32_t size);

    const SMemory &getNewest() const { return *newest.load(std::memory_order_acquire); }

private:
    std::atomic<SMemory *> newest;
};
