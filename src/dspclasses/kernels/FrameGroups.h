#pragma once

#include <algorithm>

inline constexpr int groupFrames = 64;

/// Calls body(first, count) for each group of up to 64 frames of a block. A module reads its gains
/// or coefficients once per group: a change from another thread takes effect within the block, and
/// the loop over a group keeps them in registers. See docs/kernels.md.
///
/// Always inlined: an ordinary call that passes the body would cost as much as a short block.
template <typename Body>
[[gnu::always_inline]] inline void forEachGroup(int frames, Body body) {
    for (int first = 0; first < frames; first += groupFrames)
        body(first, std::min(groupFrames, frames - first));
}

/// The same for a body whose loop the compiler vectorises. It is compiled once more for a whole
/// group, whose length is then known, so that the loop needs no remainder. A recursion has no use
/// for that: the three-band equaliser takes 3 % longer.
template <typename Body>
[[gnu::always_inline]] inline void forEachVectorGroup(int frames, Body body) {
    forEachGroup(frames, [&body](int first, int count) {
        if (count == groupFrames)
            body(first, groupFrames);
        else
            body(first, count);
    });
}
