#pragma once

/// @return whether loops may use the eight lanes of AVX2. Alone in its source file, so that
///         dspclasses_baseline_tests can link a definition that returns false.
bool processorHasWideLanes();

/// The loop and everything inlined into it, compiled a second time for AVX2.
template <typename Loop>
[[gnu::target("avx2"), gnu::flatten, gnu::noinline]] void runOnWideLanes(Loop loop) {
    loop();
}

/// Runs the AVX2 version of a loop if the processor has AVX2, otherwise the SSE2 version. A lane
/// computes exactly what the scalar loop would, so the bits are the same. See docs/kernels.md.
/// @param loop  () -> void, the whole loop. It captures pointers and gains by value, so that the
///              compiler knows that no store in the loop changes them.
template <typename Loop>
void runWide(Loop loop) {
    if (processorHasWideLanes())
        runOnWideLanes(loop);
    else
        loop();
}
