#include "corvel/files/CPendingFile.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using Tessitor::Tool::CJobError;
using Tessitor::Tool::CPendingFile;
using Tessitor::Tool::EExisting;

TEST(CPendingFile, AppearsWhenItIsCommitted) {
    const CTemporaryFolder folder;
    writeFile(folder / "place", "old");
    {
        CPendingFile pending(folder / "place", EExisting::Replaced);
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
        const CPendingFile pending(folder / "place", EExisting::Replaced);
        writeFile(pending.path(), "new");
    }
    EXPECT_EQ(readFile(folder / "place"), "old");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"place"});
}

TEST(CPendingFile, TwoForTheSamePlaceDoNotCollide) {
    const CTemporaryFolder folder;
    const CPendingFile first(folder / "place", EExisting::Kept),
        second(folder / "place", EExisting::Kept);
    EXPECT_NE(first.path(), second.path());
}

TEST(CPendingFile, FollowsLinks) {
    const CTemporaryFolder folder;
    writeFile(folder / "target", "old");
    std::filesystem::create_symlink(folder / "target", folder / "link");
    CPendingFile pending(folder / "link", EExisting::Replaced);
    writeFile(pending.path(), "new");
    pending.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(readFile(folder / "target"), "new");
}

TEST(CPendingFile, FailsIfTheFolderIsMissing) {
    const CTemporaryFolder folder;
    EXPECT_THROW(CPendingFile(folder / "missing/place", EExisting::Replaced), CJobError);
}

TEST(CPendingFile, ReplacesNoFolderAndNoDevice) {
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "folder");
    EXPECT_THROW(CPendingFile(folder / "folder", EExisting::Replaced), CJobError);
    EXPECT_THROW(CPendingFile("/dev/null", EExisting::Replaced), CJobError);
}

TEST(CPendingFile, FollowsALinkThatLeadsNowhere) {
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "far");
    std::filesystem::create_symlink("far/target", folder / "link");
    CPendingFile pending(folder / "link", EExisting::Kept);
    EXPECT_EQ(pending.path().parent_path(), folder / "far");
    writeFile(pending.path(), "new");
    pending.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(readFile(folder / "far/target"), "new");
}

TEST(CPendingFile, KeepsAnExistingFile) {
    const CTemporaryFolder folder;
    writeFile(folder / "place", "old");
    EXPECT_THROW(CPendingFile(folder / "place", EExisting::Kept), CJobError);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"place"});
}

TEST(CPendingFile, KeepsAFileThatAppearsMeanwhile) {
    const CTemporaryFolder folder;
    {
        CPendingFile pending(folder / "place", EExisting::Kept);
        writeFile(pending.path(), "new");
        writeFile(folder / "place", "of another program");
        EXPECT_THROW(pending.commit(), CJobError);
    }
    EXPECT_EQ(readFile(folder / "place"), "of another program");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"place"});
}

TEST(CPendingFile, PassesOnTheModeOfTheReplacedFile) {
    using std::filesystem::perms;
    const CTemporaryFolder folder;
    writeFile(folder / "place", "old");
    const perms mode = perms::owner_all | perms::group_write;
    std::filesystem::permissions(folder / "place", mode);
    CPendingFile pending(folder / "place", EExisting::Replaced);
    EXPECT_EQ(std::filesystem::status(pending.path()).permissions(),
              perms::owner_read | perms::owner_write);
    pending.commit();
    EXPECT_EQ(std::filesystem::status(folder / "place").permissions(), mode);
}

TEST(CPendingFile, ReplacesNoWriteProtectedFile) {
    const CTemporaryFolder folder;
    writeFile(folder / "place", "old");
    std::filesystem::permissions(folder / "place", std::filesystem::perms::owner_read);
    EXPECT_THROW(CPendingFile(folder / "place", EExisting::Replaced), CJobError);
    EXPECT_EQ(readFile(folder / "place"), "old");
}

TEST(CPendingFile, FitsBesideTheLongestName) {
    const CTemporaryFolder folder;
    const std::string longest(255, 'x');
    CPendingFile pending(folder / longest, EExisting::Kept);
    pending.commit();
    EXPECT_EQ(folder.names(), std::vector<std::string>{longest});
}
