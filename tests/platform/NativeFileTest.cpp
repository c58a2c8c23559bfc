#include "platform/NativeFile.h"

#include "CTemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class NativeFile : public testing::Test {
protected:
    std::string make(const char *name, const char *text = "") {
        std::ofstream(folder / name, std::ios::binary) << text;
        return (folder / name).string();
    }

    CTemporaryFolder folder;
};

TEST_F(NativeFile, ReadsNameAndSize) {
    const auto file = nativeFile(make("Voice.long extension", "12345"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->name, "Voice.long extension");
    EXPECT_EQ(file->size, 5u);
    EXPECT_EQ(file->attributes & nativeFolderAttribute, 0u);
}

TEST_F(NativeFile, CountsTimeFrom1601) {
    const std::string path = make("Voice.wav");
    // A time in 2026, counted from 1970 and from 1601.
    constexpr std::int64_t from1970 = 1'780'000'000;
    constexpr std::uint64_t from1601 = (from1970 + 11'644'473'600) * 10'000'000ull;
    const auto now = fs::file_time_type::clock::now();
    const auto systemNow = std::chrono::system_clock::now();
    fs::last_write_time(path,
                        now + std::chrono::duration_cast<fs::file_time_type::duration>(
                                  std::chrono::seconds(from1970) - systemNow.time_since_epoch()));
    const auto file = nativeFile(path);
    ASSERT_TRUE(file);
    EXPECT_NEAR(static_cast<double>(file->lastWriteTime), static_cast<double>(from1601), 1e7);
    EXPECT_GT(file->creationTime, from1601 - 315'360'000ull * 10'000'000);  // ten years
    EXPECT_GT(file->lastAccessTime, from1601 - 315'360'000ull * 10'000'000);
}

TEST_F(NativeFile, MarksAFolder) {
    const auto file = nativeFile(folder.path().string());
    ASSERT_TRUE(file);
    EXPECT_NE(file->attributes & nativeFolderAttribute, 0u);
    EXPECT_EQ(file->name, folder.path().filename());
}

TEST_F(NativeFile, MarksAReadOnlyFile) {
    const std::string path = make("Voice.wav");
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EQ(nativeFile(path)->attributes & 1, 1u);
    fs::permissions(path, fs::perms::owner_all);
    EXPECT_EQ(nativeFile(path)->attributes & 1, 0u);
}

TEST_F(NativeFile, ReturnsNothingForAMissingFile) {
    EXPECT_FALSE(nativeFile((folder / "none").string()));
    EXPECT_FALSE(nativeFile((folder / "none" / "none").string()));
}

TEST_F(NativeFile, TellsRegularFilesFromFolders) {
    EXPECT_TRUE(isNativeRegularFile(make("Voice.wav")));
    EXPECT_FALSE(isNativeRegularFile(folder.path().string()));
    EXPECT_FALSE(isNativeRegularFile((folder / "none").string()));
    EXPECT_FALSE(isNativeRegularFile((folder / "*.wav").string()));
    EXPECT_FALSE(isNativeRegularFile(""));
}

TEST_F(NativeFile, CountsFilesButNotFolders) {
    EXPECT_EQ(nativeFileCount(folder.path().string()), 0);
    make("one");
    make("two.wav");
    fs::create_directory(folder / "inner");
    std::ofstream(folder / "inner" / "three");
    EXPECT_EQ(nativeFileCount(folder.path().string()), 2);
}

TEST_F(NativeFile, AFolderThatCannotBeReadHasNoFiles) {
    EXPECT_EQ(nativeFileCount((folder / "none").string()), 0);
    EXPECT_EQ(nativeFileCount(make("file")), 0);
}

}  // namespace
