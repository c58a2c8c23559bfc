#pragma once

#include <cstddef>
#include <memory>
#include <new>

/// Two pairs of channels. Each stage of the strip reads one pair and writes the other, except that
/// the first may read the host's input and the last may write its output. The buffers never shrink,
/// and no signal is carried from one block to the next.
template <typename Sample>
class TStripBuffers {
public:
    Sample *DryBuf[2] = {nullptr, nullptr};
    Sample *WetBuf[2] = {nullptr, nullptr};

    /// Makes room for `frames`. New buffers are zeroed: a routing with an invalid mode writes no
    /// output, and the next stage then reads what the buffer already holds.
    /// @throw std::bad_alloc; the buffers are then unchanged.
    void grow(int frames) {
        if (capacity >= frames)
            return;
        const std::size_t stride = strideFor(static_cast<std::size_t>(frames));
        storage.reset(new (lineAlignment) Sample[4 * stride]());
        DryBuf[0] = storage.get();
        DryBuf[1] = DryBuf[0] + stride;
        WetBuf[0] = DryBuf[1] + stride;
        WetBuf[1] = WetBuf[0] + stride;
        capacity = frames;
    }

private:
    static constexpr std::size_t lineBytes = 64;
    static constexpr std::align_val_t lineAlignment{lineBytes};
    struct SFree {
        void operator()(Sample *samples) const { ::operator delete[](samples, lineAlignment); }
    };

    /// Each channel starts on a cache line, and at a different offset within its page: channels at
    /// the same offset would evict each other from the cache.
    static constexpr std::size_t strideFor(std::size_t frames) {
        constexpr std::size_t page = 4096 / sizeof(Sample),
                              shift = (1024 + lineBytes) / sizeof(Sample);
        return (frames + page - 1) / page * page + shift;
    }

    std::unique_ptr<Sample[], SFree> storage;
    int capacity = 0;  // frames
};
