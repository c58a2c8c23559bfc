#pragma once

#include <memory>

/// The two pairs of channels between which a strip run goes back and forth. They only grow, and
/// hold nothing from one block to the next.
template <typename Sample>
class TStripBuffers {
public:
    Sample *DryBuf[2] = {nullptr, nullptr};
    Sample *WetBuf[2] = {nullptr, nullptr};

    /// Allocates if `frames` is more than ever before. @throw std::bad_alloc, all staying as it
    /// was.
    void grow(int frames) {
        if (capacity >= frames)
            return;
        const auto length = static_cast<std::size_t>(frames);
        auto longer = std::make_unique<Sample[]>(4 * length);
        DryBuf[0] = longer.get();
        DryBuf[1] = DryBuf[0] + length;
        WetBuf[0] = DryBuf[1] + length;
        WetBuf[1] = WetBuf[0] + length;
        storage = std::move(longer);
        capacity = frames;
    }

private:
    std::unique_ptr<Sample[]> storage;
    int capacity = 0;  // frames
};
