#pragma once

/// @return whether loops may use the eight lanes of AVX2. The one definition stands alone in its
///         source, so that a test can link another one.
bool processorHasWideLanes();

/// Everything that the loop calls is compiled once more inside this function, for AVX2.
template <typename Loop>
[[gnu::target("avx2"), gnu::flatten, gnu::noinline]] void runOnWideLanes(Loop loop) {
    loop();
}

/// Runs a loop over samples: as the compiler vectorises it for the eight lanes of AVX2 where the
/// processor has them, else for the four of SSE2. A lane computes just what the plain loop would,
/// so the bits are the same.
/// @param loop  holds the whole loop. It takes pointers and gains by value, so that the compiler
///              sees that no store of the loop can change them.
template <typename Loop>
void runWide(Loop loop) {
    if (processorHasWideLanes())
        runOnWideLanes(loop);
    else
        loop();
}
