#include "corvel/CPendingFile.h"

#include "corvel/Errors.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using Tessitor::Tool::CJobError;
using Tessitor::Tool::CPendingFile;

TEST(CPendingFile, AppearsWhenItIsCommitted) {
    const CTemporaryFolder folder;
    writeFile(folder / "place", "old");
    {
        CPendingFile pending(folder / "place");
        writeFile(pending.path(), "new");
        EXPECT_EQ(readFile(folder / "place"), "old");
        pending.commit();
        EXPECT_EQ(readFile(folder / "place"), "new");
    }
    EXPECT_EQ(folder.names(), std::vector<std::string>{"place"});
}

TEST(CPendingFile, LeavesNothingUnlessItIsCommitted) {
    const CTemporaryFolder folder;
    writeFile(folder / "place", "old");
    {
        const CPendingFile pending(folder / "place");
        writeFile(pending.path(), "new");
    }
    EXPECT_EQ(readFile(folder / "place"), "old");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"place"});
}

TEST(CPendingFile, TwoForTheSamePlaceDoNotCollide) {
    const CTemporaryFolder folder;
    const CPendingFile first(folder / "place"), second(folder / "place");
    EXPECT_NE(first.path(), second.path());
}

TEST(CPendingFile, FollowsLinks) {
    const CTemporaryFolder folder;
    writeFile(folder / "target", "old");
    std::filesystem::create_symlink(folder / "target", folder / "link");
    CPendingFile pending(folder / "link");
    writeFile(pending.path(), "new");
    pending.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(readFile(folder / "target"), "new");
}

TEST(CPendingFile, FailsIfTheFolderIsMissing) {
    const CTemporaryFolder folder;
    EXPECT_THROW(CPendingFile(folder / "missing/place"), CJobError);
}

TEST(CPendingFile, ReplacesNoFolderAndNoDevice) {
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "folder");
    EXPECT_THROW(CPendingFile(folder / "folder"), CJobError);
    EXPECT_THROW(CPendingFile("/dev/null"), CJobError);
}
