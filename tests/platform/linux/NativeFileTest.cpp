#include "platform/NativeFile.h"

#include "CTemporaryFolder.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

TEST(NativeFileOnLinux, MarksNamesWithALeadingDotAsHidden) {
    const CTemporaryFolder folder;
    std::ofstream(folder / ".hidden");
    std::ofstream(folder / "plain");
    std::filesystem::create_directory(folder / ".both");
    EXPECT_EQ(nativeFile((folder / ".hidden").string())->attributes, 2u);
    EXPECT_EQ(nativeFile((folder / "plain").string())->attributes, 128u);
    EXPECT_EQ(nativeFile((folder / ".both").string())->attributes, 18u);
}

TEST(NativeFileOnLinux, ReadsAccessAndWriteTimeExactly) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "Voice.wav").string();
    std::ofstream{path};
    constexpr std::uint64_t at1970 = 116'444'736'000'000'000;
    const timespec times[] = {{1'000'000'000, 123'456'700}, {1'500'000'000, 987'654'300}};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    const auto file = nativeFile(path);
    EXPECT_EQ(file->lastAccessTime, at1970 + 10'000'000'001'234'567);
    EXPECT_EQ(file->lastWriteTime, at1970 + 15'000'000'009'876'543);
    // The creation time cannot be set, and some file systems do not record it.
    if (file->creationTime != 0) {
        EXPECT_GT(file->creationTime, at1970 + 17'000'000'000'000'000);
    }
}

TEST(NativeFileOnLinux, FollowsLinks) {
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "inner");
    std::filesystem::create_directory_symlink(folder / "inner", folder / "link");
    std::filesystem::create_symlink(folder / "none", folder / "broken");
    EXPECT_EQ(nativeFileCount(folder.path().string()), 1);
    EXPECT_NE(nativeFile((folder / "link").string())->attributes & nativeFolderAttribute, 0u);
    EXPECT_TRUE(isNativeFolder((folder / "link").string()));
    EXPECT_FALSE(isNativeFolder((folder / "broken").string()));
    std::ofstream(folder / "file");
    std::filesystem::create_symlink(folder / "file", folder / "link to file");
    EXPECT_TRUE(isNativeRegularFile((folder / "link to file").string()));
    EXPECT_FALSE(isNativeRegularFile((folder / "broken").string()));
}

TEST(NativeFileOnLinux, PipesAndDevicesAreNotRegularFiles) {
    const CTemporaryFolder folder;
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(isNativeRegularFile(pipe)) << "and it is not opened, which would wait";
    EXPECT_FALSE(isNativeRegularFile("/dev/zero"));
}

}  // namespace
