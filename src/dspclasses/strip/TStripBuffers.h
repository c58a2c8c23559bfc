#pragma once

#include <cstddef>
#include <memory>
#include <new>

/// The two pairs of channels between which a strip run goes back and forth. They only grow, and
/// hold nothing from one block to the next.
template <typename Sample>
class TStripBuffers {
public:
    Sample *DryBuf[2] = {nullptr, nullptr};
    Sample *WetBuf[2] = {nullptr, nullptr};

    /// Allocates if `frames` is more than ever before, and silences: a routing outside its modes
    /// writes nothing, and the next stage reads what stands here.
    /// @throw std::bad_alloc, all staying as it was.
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

    /// The channels begin at a cache line each, and at different places of a page: at the same
    /// one they would drive each other out of the cache.
    static constexpr std::size_t strideFor(std::size_t frames) {
        constexpr std::size_t page = 4096 / sizeof(Sample),
                              shift = (1024 + lineBytes) / sizeof(Sample);
        return (frames + page - 1) / page * page + shift;
    }

    std::unique_ptr<Sample[], SFree> storage;
    int capacity = 0;  // frames
};
