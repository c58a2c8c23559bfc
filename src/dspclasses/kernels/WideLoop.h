#pragma once

/// @return whether loops may use the eight lanes of AVX2. Defined alone in its source, so that
///         dspclasses_baseline_tests can link a definition that says no.
bool processorHasWideLanes();

/// The loop and everything inlined into it, compiled a second time for AVX2.
template <typename Loop>
[[gnu::target("avx2"), gnu::flatten, gnu::noinline]] void runOnWideLanes(Loop loop) {
    loop();
}

/// Runs a loop as compiled for AVX2 where the processor has it, else as compiled for SSE2. A lane
/// computes exactly what the scalar loop would, so the bits are the same. See docs/kernels.md.
/// @param loop  () -> void, the whole loop. It captures pointers and gains by value: then the
///              compiler knows that no store of the loop changes them.
template <typename Loop>
void runWide(Loop loop) {
    if (processorHasWideLanes())
        runOnWideLanes(loop);
    else
        loop();
}
