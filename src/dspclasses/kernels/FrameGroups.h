#pragma once

#include <algorithm>

/// Runs body(first, count) over a block, group by group. A module without a state of its own reads
/// its gains once per group: a change on another thread lands inside the block, and the loop over
/// a group keeps them in registers. Always in line: handing the body over costs as much as a short
/// block does.
template <typename Body>
[[gnu::always_inline]] inline void forEachGroup(int frames, Body body) {
    constexpr int groupFrames = 64;
    for (int first = 0; first < frames; first += groupFrames)
        body(first, std::min(groupFrames, frames - first));
}
