#include "Allocation.h"
#include "hostlayer/FakeHost.h"

#include <gtest/gtest.h>
#include <string>

extern "C" AEffect *VSTPluginMain(audioMasterCallback host);

namespace {

// Loads with the given allocation failing; closes what was built all the same.
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

TEST(VSTPluginMain, TellsTheUserAndGivesNoEffectWhenItCannotBeBuilt) {
    FakeHost host;
    host.logging = false;
    ASSERT_TRUE(loads(1'000'000));
    // The effect itself and its host services; the modules' own lines would stop at an assertion.
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
