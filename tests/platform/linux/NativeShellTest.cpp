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

/// Puts a fake xdg-open on the path. It writes to a pipe: the number of its arguments, the first
/// argument, whether it has inherited file 100, "open" or "closed", and its LD_LIBRARY_PATH.
class NativeShell : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(mkfifo((folder / "call").c_str(), 0600), 0);
        std::ofstream(folder / "xdg-open")
            << "#!/bin/sh\n"
            << "[ -e /proc/$$/fd/100 ] && file=open || file=closed\n"
            << "printf '%s|%s|%s|%s' \"$#\" \"$1\" \"$file\" \"$LD_LIBRARY_PATH\" > "
            << (folder / "call") << "\n";
        fs::permissions(folder / "xdg-open", fs::perms::owner_all);
        path = std::getenv("PATH");
        setenv("PATH", folder.path().c_str(), 1);
    }
    void TearDown() override { setenv("PATH", path.c_str(), 1); }

    // Opening the pipe waits for the writer.
    std::string call() const {
        std::string text;
        std::getline(std::ifstream(folder / "call"), text);
        return text;
    }

    CTemporaryFolder folder;
    std::string path;
};

TEST_F(NativeShell, PassesTheDocumentAsOneArgument) {
    ASSERT_TRUE(openNativeDocument("http://here/a b?c='d'&e=\"$f\""));
    EXPECT_EQ(call(), "1|http://here/a b?c='d'&e=\"$f\"|closed|");
}

TEST_F(NativeShell, LeavesNoChildProcess) {
    ASSERT_TRUE(openNativeDocument("help.htm"));
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(call(), "1|help.htm|closed|");
}

TEST_F(NativeShell, PassesOnNoOpenFile) {
    ASSERT_EQ(dup2(STDOUT_FILENO, 100), 100);
    const bool opened = openNativeDocument("help.htm");
    close(100);
    ASSERT_TRUE(opened);
    EXPECT_EQ(call(), "1|help.htm|closed|");
}

TEST_F(NativeShell, DoesNotPassOnTheLibraryPathOfTheHost) {
    setenv("LD_LIBRARY_PATH", "/usr/lib/host", 1);
    const bool opened = openNativeDocument("help.htm");
    unsetenv("LD_LIBRARY_PATH");
    ASSERT_TRUE(opened);
    EXPECT_EQ(call(), "1|help.htm|closed|");
}

}  // namespace
