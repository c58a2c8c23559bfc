#pragma once

/// Calls body(first, count) for each group of up to 64 frames of a block. A module reads its gains
/// or coefficients once per group: a change from another thread takes effect within the block, and
/// the loop over a group keeps them in registers. See docs/kernels.md.
///
/// Always inlined: an ordinary call that passes the body would cost as much as a short block. The
/// compiler thus knows the length of a whole group, and the loop over it needs no remainder.
template <typename Body>
[[gnu::always_inline]] inline void forEachGroup(int frames, Body body) {
    constexpr int groupFrames = 64;
    int first = 0;
    for (; first + groupFrames <= frames; first += groupFrames)
        body(first, groupFrames);
    if (first < frames)
        body(first, frames - first);
}
