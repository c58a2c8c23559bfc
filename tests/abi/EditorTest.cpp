#include "CTemporaryFolder.h"
#include "abi/HeapInUse.h"
#include "abi/LoadedPlugin.h"
#include "hostlayer/FakeHost.h"
#include "platform/windowing/CTestHost.h"

#include <gtest/gtest.h>

namespace {

class LoadedEditor : public testing::Test {
protected:
    LoadedEditor() { host.logging = false; }

    void openIdleAndClose(const CLoadedEffect &effect) {
        void *const parent = system.createWindow();
        EXPECT_EQ(effect.send(effEditOpen, 0, 0, parent), 1);
        for (int i = 0; i < 3; ++i)
            effect.send(effEditIdle);
        effect.send(effEditClose);
        system.destroyWindow(parent);
    }

    CTestHost system;
    FakeHost host;
};

TEST_F(LoadedEditor, OpensInAWindowOfTheHostAgainAndAgain) {
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    openIdleAndClose(effect);
    openIdleAndClose(effect);
}

TEST_F(LoadedEditor, NeedsNoPictures) {
    const CTemporaryFolder folder;
    const std::filesystem::path copy =
        folder.path() / std::filesystem::path(CORVEL_PLUGIN_FILE).filename();
    std::filesystem::copy_file(CORVEL_PLUGIN_FILE, copy);
    const CPluginFile file(copy.string().c_str());
    const CLoadedEffect effect(file, FakeHost::callback);
    openIdleAndClose(effect);
}

TEST_F(LoadedEditor, FreesAllItsMemoryWhenThePluginIsUnloaded) {
    const auto loadOpenAndUnload = [this] {
        const CPluginFile file;
        const CLoadedEffect effect(file, FakeHost::callback);
        openIdleAndClose(effect);
    };
    constexpr std::size_t loads = 20;
    for (std::size_t i = 0; i < loads; ++i)
        loadOpenAndUnload();
    const std::size_t before = heapInUse();
    for (std::size_t i = 0; i < loads; ++i)
        loadOpenAndUnload();
    // Debian's fontconfig loses a kilobyte whenever it loads its configuration.
    constexpr std::size_t bytesPerLoad = 4096;
    EXPECT_LT(heapInUse(), before + loads * bytesPerLoad);
}

}  // namespace
