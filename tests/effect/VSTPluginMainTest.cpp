#include "Allocation.h"
#include "hostlayer/FakeHost.h"

#include <gtest/gtest.h>
#include <string>

extern "C" AEffect *VSTPluginMain(audioMasterCallback host);

namespace {

/// Loads the effect while one allocation fails. If it is created all the same, closes it.
bool loads(int failing) {
    AEffect *effect = nullptr;
    {
        const CFailingAllocation failure(failing);
        effect = VSTPluginMain(FakeHost::callback);
    }
    if (effect == nullptr)
        return false;
    effect->dispatcher(effect, effClose, 0, 0, nullptr, 0.0f);
    return true;
}

}  // namespace

TEST(VSTPluginMain, ReportsThatTheEffectCannotBeBuiltAndReturnsNull) {
    FakeHost host;
    host.logging = false;
    ASSERT_TRUE(loads(1'000'000));
    // Only allocations before those of the modules, since a module without its delay line asserts.
    constexpr int beforeTheModules = 100;
    for (int failing = 0; failing < beforeTheModules; ++failing) {
        testing::internal::CaptureStderr();
        const bool loaded = loads(failing);
        const std::string message = testing::internal::GetCapturedStderr();
        EXPECT_FALSE(loaded) << failing;
        EXPECT_EQ(message, "Exception occurred: Caught exception in main function of Corvel. "
                           "Cannot continue to load\n")
            << failing;
    }
}
