#include "platform/NativeShell.h"

#include "CTemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// A folder with an xdg-open that writes into a pipe how many arguments it has, the first, and
/// whether it has file 100 open.
class NativeShell : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(mkfifo((folder / "told").c_str(), 0600), 0);
        std::ofstream(folder / "xdg-open")
            << "#!/bin/sh\n"
            << "[ -e /proc/$$/fd/100 ] && file=open || file=closed\n"
            << "printf '%s|%s|%s' \"$#\" \"$1\" \"$file\" > " << (folder / "told") << "\n";
        fs::permissions(folder / "xdg-open", fs::perms::owner_all);
        path = std::getenv("PATH");
        setenv("PATH", folder.path().c_str(), 1);
    }
    void TearDown() override { setenv("PATH", path.c_str(), 1); }

    // Opening the pipe waits for the one who writes.
    std::string told() const {
        std::string text;
        std::getline(std::ifstream(folder / "told"), text);
        return text;
    }

    CTemporaryFolder folder;
    std::string path;
};

TEST_F(NativeShell, HandsTheDocumentOverInOnePiece) {
    ASSERT_TRUE(openNativeDocument("http://here/a b?c='d'&e=\"$f\""));
    EXPECT_EQ(told(), "1|http://here/a b?c='d'&e=\"$f\"|closed");
}

TEST_F(NativeShell, LeavesNoChildBehind) {
    ASSERT_TRUE(openNativeDocument("help.htm"));
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(told(), "1|help.htm|closed");
}

TEST_F(NativeShell, GivesAwayNoOpenFile) {
    ASSERT_EQ(dup2(STDOUT_FILENO, 100), 100);
    const bool opened = openNativeDocument("help.htm");
    close(100);
    ASSERT_TRUE(opened);
    EXPECT_EQ(told(), "1|help.htm|closed");
}

}  // namespace
