#include "CTemporaryFolder.h"
#include "CVariable.h"
#include "abi/LoadedPlugin.h"
#include "hostlayer/FakeHost.h"
#include "platform/windowing/CTestHost.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace {

/// Notes whether a file is opened.
class CFileWatch {
public:
    explicit CFileWatch(const std::string &path) : m_events(inotify_init1(IN_NONBLOCK)) {
        inotify_add_watch(m_events, path.c_str(), IN_OPEN);
    }
    CFileWatch(const CFileWatch &) = delete;
    CFileWatch &operator=(const CFileWatch &) = delete;
    ~CFileWatch() { close(m_events); }

    bool wasOpened() {
        char event[4096];
        return read(m_events, event, sizeof event) > 0;
    }

private:
    int m_events;
};

bool opens(const CLoadedEffect &effect, void *parent) {
    const bool isOpen = effect.send(effEditOpen, 0, 0, parent) == 1;
    effect.send(effEditIdle);
    effect.send(effEditClose);
    return isOpen;
}

TEST(EditorNeeds, ADisplayOnlyToOpen) {
    FakeHost host;
    const CVariable display("DISPLAY", std::nullopt);
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    int parent = 0;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(opens(effect, &parent));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    effect.send(effSetProgram, 0, 3);
    EXPECT_EQ(effect.text(effGetProgramName), "BV (Pop)");
}

TEST(EditorNeeds, FontsOnlyToOpen) {
    const CTemporaryFolder folder;
    const std::string configuration = (folder / "fonts.conf").string();
    std::ofstream(configuration) << "<fontconfig></fontconfig>";
    const CVariable variable("FONTCONFIG_FILE", configuration);
    CFileWatch watch(configuration);
    CTestHost system;
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    effect.setParameter(0, 0.25f);
    effect.send(effSetProgram, 0, 3);
    EXPECT_FALSE(watch.wasOpened());

    void *const parent = system.createWindow();
    EXPECT_TRUE(opens(effect, parent));  // there are no fonts
    EXPECT_TRUE(watch.wasOpened());
    system.destroyWindow(parent);
}

}  // namespace
