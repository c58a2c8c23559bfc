#include "CEditorStress.h"
#include "MemoryInUse.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace {

using Clock = std::chrono::steady_clock;

int numberFrom(const char *variable, int otherwise) {
    const char *text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : otherwise;
}

class DrivenStress : public testing::Test {
protected:
    void actUntil(Clock::time_point end) {
        while (Clock::now() < end) {
            const std::string action = stress.act();
            ++actions;
            ASSERT_EQ(stress.difference(), "") << "after action " << actions << ": " << action;
            host.forgetCalls();
        }
    }

    const unsigned seed = static_cast<unsigned>(
        numberFrom("CORVEL_STRESS_SEED", static_cast<int>(std::random_device()() & 0xFFFFFF)));
    CDesktop desktop;
    const CPluginFile file;
    FakeHost host;
    CEditorStress stress{desktop, file, seed};
    long actions = 0;
};

// CORVEL_STRESS_SECONDS and CORVEL_STRESS_SEED choose another time and another run.
TEST_F(DrivenStress, KeepsWhatTheUserAndTheHostHaveMade) {
    const std::chrono::seconds time(numberFrom("CORVEL_STRESS_SECONDS", 10));
    SCOPED_TRACE("CORVEL_STRESS_SEED=" + std::to_string(seed));
    const auto start = Clock::now();
    ASSERT_NO_FATAL_FAILURE(actUntil(start + time / 2));
    const std::size_t halfway = memoryInUse();
    ASSERT_NO_FATAL_FAILURE(actUntil(start + time));
    const std::size_t atEnd = memoryInUse();
    std::cout << actions << " actions; " << halfway << " bytes in use halfway, " << atEnd
              << " at the end\n";
    // Glyphs that are drawn for the first time, buffers that grow
    constexpr std::size_t kept = 500'000;
    EXPECT_LT(atEnd, halfway + kept);
}

}  // namespace
