#pragma once

#include <array>
#include <cstddef>
#include <vector>

/// The buffers between the de-esser's filter and its detector, both channels. [audio thread]
template <typename Sample>
class TSideChain {
public:
    /// Allocates if the block is longer than any before; the contents are then lost.
    void grow(int frames) {
        const auto needed = static_cast<std::size_t>(frames);
        // The right one grows last: if an allocation fails, it is still too short and the next call
        // tries again.
        if (needed <= m_right.size())
            return;
        m_left.assign(needed, 0);
        m_right.assign(needed, 0);
    }

    int size() const { return static_cast<int>(m_left.size()); }  ///< frames
    Sample *left() { return m_left.data(); }
    Sample *right() { return m_right.data(); }
    std::array<Sample *, 2> channels() { return {left(), right()}; }

private:
    static constexpr std::size_t initialFrames = 512;
    std::vector<Sample> m_left = std::vector<Sample>(initialFrames);
    std::vector<Sample> m_right = std::vector<Sample>(initialFrames);
};
