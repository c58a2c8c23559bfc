#include "CEditorStress.h"
#include "abi/HeapInUse.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace {

int numberFrom(const char *variable, int otherwise) {
    const char *text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : otherwise;
}

// CORVEL_STRESS_SECONDS and CORVEL_STRESS_SEED choose another time and another run.
TEST(DrivenStress, KeepsTheChainThatTheUserHasMade) {
    const auto seed = static_cast<unsigned>(
        numberFrom("CORVEL_STRESS_SEED", static_cast<int>(std::random_device()() & 0xFFFFFF)));
    const std::chrono::seconds time(numberFrom("CORVEL_STRESS_SECONDS", 10));
    SCOPED_TRACE("CORVEL_STRESS_SEED=" + std::to_string(seed));
    CDesktop desktop;
    const CPluginFile file;
    FakeHost host;
    CEditorStress stress(desktop, file, seed);
    const auto end = std::chrono::steady_clock::now() + time;
    long actions = 0;
    std::size_t heap = 0;
    while (std::chrono::steady_clock::now() < end) {
        const std::string action = stress.act();
        ++actions;
        ASSERT_TRUE(stress.isAsExpected()) << "after action " << actions << ": " << action;
        host.forgetCalls();
        constexpr long settled = 200;  // by now everything has been used once
        if (actions == settled)
            heap = heapInUse();
    }
    std::cout << actions << " actions\n";
    // Glyphs and the like stay.
    constexpr std::size_t kept = 2'000'000;
    EXPECT_TRUE(heap == 0 || heapInUse() < heap + kept) << heapInUse() - heap << " bytes are lost";
}

}  // namespace
