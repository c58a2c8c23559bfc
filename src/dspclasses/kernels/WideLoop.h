#pragma once

#include <type_traits>

/// @return whether loops may use the eight lanes of AVX2 and fused multiply-add. Alone in its
///         source file, so that dspclasses_baseline_tests can link a definition that returns false.
bool processorHasWideLanes();

// What a loop is compiled for. The types have no data: they select code.

struct SNarrowLanes {
    static constexpr bool fusesMultiplyAdd = false;
};
struct SWideLanes {
    static constexpr bool fusesMultiplyAdd = true;
};

/// The loop and everything inlined into it, compiled a second time for AVX2 and fused multiply-add.
/// Lambdas that the compiler would leave out of it need always_inline.
template <typename Loop>
[[gnu::target("avx2,fma"), gnu::flatten, gnu::noinline]] void runOnWideLanes(Loop loop) {
    if constexpr (std::is_invocable_v<Loop, SWideLanes>)
        loop(SWideLanes());
    else
        loop();
}

/// Runs the AVX2 version of a loop if the processor has AVX2 and fused multiply-add, otherwise the
/// SSE2 version. A lane computes exactly what the scalar loop would, so the bits are the same. See
/// docs/kernels.md.
/// @param loop  () -> void or (processor) -> void, the whole loop; `processor` is SWideLanes or
///              SNarrowLanes, for the functions of SingleMathLanes.h. It captures pointers and
///              gains by value, so that the compiler knows that no store in the loop changes them.
template <typename Loop>
void runWide(Loop loop) {
    if (processorHasWideLanes())
        runOnWideLanes(loop);
    else if constexpr (std::is_invocable_v<Loop, SNarrowLanes>)
        loop(SNarrowLanes());
    else
        loop();
}
