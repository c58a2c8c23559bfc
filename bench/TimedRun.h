#pragma once

#include <benchmark/benchmark.h>
#include <chrono>

/// Takes the time of run() alone.
template <typename Run>
void time(benchmark::State &state, Run run) {
    const auto start = std::chrono::steady_clock::now();
    run();
    state.SetIterationTime(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
}
