#include "CTemporaryFolder.h"
#include "editor/driven/DrivenEditor.h"

#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// With a fake xdg-open on the path, which writes its first argument to a pipe.
class DrivenHelp : public DrivenEditor {
protected:
    DrivenHelp() {
        if (mkfifo((folder / "call").c_str(), 0600) != 0)
            throw std::runtime_error("no pipe");
        std::ofstream(folder / "xdg-open")
            << "#!/bin/sh\nprintf '%s' \"$1\" > " << (folder / "call") << "\n";
        fs::permissions(folder / "xdg-open", fs::perms::owner_all);
        setenv("PATH", folder.path().c_str(), 1);
    }
    ~DrivenHelp() override { setenv("PATH", path.c_str(), 1); }

    CTemporaryFolder folder;
    std::string path = std::getenv("PATH");
};

TEST_F(DrivenHelp, OpensThePageBesideTheEffect) {
    driven.clickAt(Layout::help);
    // Opening the pipe waits for the writer.
    std::string opened;
    std::getline(std::ifstream(folder / "call"), opened);
    EXPECT_EQ(opened, fs::path(CORVEL_PLUGIN_FILE).parent_path() / "Corvel/Resources/Corvel.htm");
    EXPECT_TRUE(takeAutomation().empty());
}

}  // namespace
